#include "labels/arrowwidget.h"

#include "common/cuscolorconfig.h"
#include "common/painterguard.h"
#include "common/restyle.h"
#include "common/safeint.h"
#include "common/saferect.h"

#include <QHBoxLayout>
#include <QPainter>
#include <QPainterPath>
#include <QVariant>

#include <utility>

namespace {

constexpr int kBorderRadius = 4;
constexpr int kAngleHeight = 8;
constexpr int kBorderWidth = 1;
constexpr double kBasePerHeight = 2.7;

int measure(int value)
{
    return qBound(0, value, QWIDGETSIZE_MAX);
}

QSize measure(const QSize &size)
{
    return {measure(size.width()), measure(size.height())};
}

/// \a a - \a b, kept where a widget can still stand.
QPoint difference(const QPoint &a, const QPoint &b)
{
    return {vellum::safeExtent(qint64(a.x()) - b.x()), vellum::safeExtent(qint64(a.y()) - b.y())};
}

} // namespace

struct ArrowWidget::Shape
{
    QPolygonF triangle;
    QRect body;
};

struct ArrowWidget::Private
{
    ArrowType arrowType = Arrow_Bottom;
    QHBoxLayout *layout = nullptr;
    QColor borderColor;
    QColor backgroundColor;
    int borderRadius = kBorderRadius;
    int angleHeight = kAngleHeight;
    int borderWidth = kBorderWidth;
    QPoint vertexOffset;
};

ArrowWidget::ArrowWidget(ArrowType arrowType, QWidget *parent)
    : QFrame(parent)
    , d(std::make_unique<Private>())
{
    d->arrowType = arrowType;
    d->layout = new QHBoxLayout(this);
    d->layout->setSpacing(0);
    d->layout->setContentsMargins(0, 0, 0, 0);
    const CusColorConfig *config = CusColorConfig::instance();
    d->borderColor = config->getColor(QStringLiteral("ArrowWidget_BorderColor"), QColor());
    d->backgroundColor = config->getColor(QStringLiteral("ArrowWidget_BackgroundColor"), QColor());
    setWindowFlag(Qt::FramelessWindowHint);
    setAttribute(Qt::WA_TranslucentBackground);
    setProperty("trans", true);
}

ArrowWidget::~ArrowWidget() = default;

void ArrowWidget::addCenterWidget(QWidget *widget)
{
    if (widget && (widget == this || widget->isAncestorOf(this)))
        return;
    while (const std::unique_ptr<QLayoutItem> item{d->layout->takeAt(0)}) {
        QWidget *former = item->widget();
        if (former && former != widget) {
            former->hide();
            former->deleteLater();
        }
    }
    if (widget) {
        widget->setProperty("trans", true);
        vellum::restyle(widget);
        if (widget->parentWidget() != this)
            widget->setParent(this);
        d->layout->addWidget(widget);
    }
    passSizeLimits();
    update();
}

void ArrowWidget::setCenterWidgetSize(const QSize &size)
{
    const QSize frame = measure(measure(size) + arrowExtent());
    setFrameSize(frame, frame);
}

void ArrowWidget::setFrameSize(const QSize &minimum, const QSize &maximum)
{
    setMinimumSize(measure(minimum));
    setMaximumSize(measure(maximum));
    passSizeLimits();
}

void ArrowWidget::setArrowType(ArrowType arrowType)
{
    d->arrowType = arrowType;
    passSizeLimits();
    update();
}

ArrowWidget::ArrowType ArrowWidget::arrowType() const
{
    return d->arrowType;
}

void ArrowWidget::setAngleHeight(int height)
{
    d->angleHeight = measure(height);
    passSizeLimits();
    update();
}

int ArrowWidget::angleHeight() const
{
    return d->angleHeight;
}

void ArrowWidget::setBGColor(const QColor &color)
{
    d->backgroundColor = color;
    update();
}

void ArrowWidget::setBorderColor(const QColor &color)
{
    d->borderColor = color;
    update();
}

void ArrowWidget::setBorderRadius(int radius)
{
    d->borderRadius = measure(radius);
    update();
}

void ArrowWidget::setBorderWidth(int width)
{
    d->borderWidth = measure(width);
    update();
}

void ArrowWidget::move(const QPoint &pos)
{
    QFrame::move(pos);
}

void ArrowWidget::moveByAngleVertexPos(const QPoint &pos)
{
    // An offset left from earlier limits would draw the tip beside the point.
    setVertexOffset(QPoint());
    move(cornerFor(pos));
}

void ArrowWidget::moveByBeginEndPoint(const QPoint &vertex, const QPoint &begin, const QPoint &end)
{
    const QPoint free = cornerFor(vertex);
    QPoint corner = free;
    if (!begin.isNull() || !end.isNull()) {
        corner.setX(qMax(corner.x(), begin.x()));
        if (qint64(corner.x()) + width() > end.x())
            corner.setX(difference(end, QPoint(width(), 0)).x());
    }
    move(corner);
    setVertexOffset(difference(free, corner));
}

void ArrowWidget::moveByCenterPoint(const QPoint &pos)
{
    move(difference(pos, QPoint(width() / 2, height() / 2)));
}

void ArrowWidget::resetWidgetUiLanguage() { }

void ArrowWidget::paintEvent(QPaintEvent *event)
{
    // Equal margins are ignored, so this asks for a new layout only after a change.
    d->layout->setContentsMargins(arrowMargins());
    QPainter painter(this);
    const bool hasBorder = d->borderColor.isValid() && d->borderWidth > 0;
    if (hasBorder)
        drawShape(&painter, d->borderColor, 0);
    drawShape(&painter, d->backgroundColor, hasBorder ? d->borderWidth : 0);
    // Past QFrame on purpose: the drawn shape is the frame.
    QWidget::paintEvent(event); // NOLINT(bugprone-parent-virtual-call)
}

void ArrowWidget::showEvent(QShowEvent *event)
{
    // Before the first paint, or the centre widget would be seen to jump.
    d->layout->setContentsMargins(arrowMargins());
    d->layout->activate();
    QFrame::showEvent(event);
}

ArrowWidget::Shape ArrowWidget::shape(int inset) const
{
    const int w = width();
    const int h = height();
    const int angle = d->angleHeight;
    const int base = angle + d->borderWidth;
    const int half = vellum::toInt(angle * kBasePerHeight) / 2 - inset;
    const QPoint middle = QPoint(w / 2, h / 2) + d->vertexOffset;
    const QRect body =
        QRect(0, 0, w, h).marginsRemoved(arrowMargins()).adjusted(inset, inset, -inset, -inset);
    const auto above = [&](int tip, int baseLine) {
        return QPolygonF({QPointF(middle.x(), tip), QPointF(middle.x() - half, baseLine),
                          QPointF(middle.x() + half, baseLine)});
    };
    const auto beside = [&](int tip, int baseLine) {
        return QPolygonF({QPointF(tip, middle.y()), QPointF(baseLine, middle.y() - half),
                          QPointF(baseLine, middle.y() + half)});
    };
    switch (d->arrowType) {
    case Arrow_Top:
        return {above(d->vertexOffset.y() + inset, base), body};
    case Arrow_Left:
        return {beside(d->vertexOffset.x() + inset, base), body};
    case Arrow_Right:
        return {beside(w + d->vertexOffset.x() - inset, w - base), body};
    case Arrow_Bottom:
        break;
    }
    return {above(h + d->vertexOffset.y() - inset, h - base), body};
}

QMargins ArrowWidget::arrowMargins() const
{
    switch (d->arrowType) {
    case Arrow_Top:
        return {0, d->angleHeight, 0, 0};
    case Arrow_Left:
        return {d->angleHeight, 0, 0, 0};
    case Arrow_Right:
        return {0, 0, d->angleHeight, 0};
    case Arrow_Bottom:
        break;
    }
    return {0, 0, 0, d->angleHeight};
}

QSize ArrowWidget::arrowExtent() const
{
    const QMargins margins = arrowMargins();
    return {margins.left() + margins.right(), margins.top() + margins.bottom()};
}

QPoint ArrowWidget::cornerFor(const QPoint &vertex) const
{
    switch (d->arrowType) {
    case Arrow_Top:
        return difference(vertex, QPoint(width() / 2, 0));
    case Arrow_Left:
        return difference(vertex, QPoint(0, height() / 2));
    case Arrow_Right:
        return difference(vertex, QPoint(width(), height() / 2));
    case Arrow_Bottom:
        break;
    }
    return difference(vertex, QPoint(width() / 2, height()));
}

void ArrowWidget::passSizeLimits()
{
    QLayoutItem *item = d->layout->itemAt(0);
    QWidget *center = item ? item->widget() : nullptr;
    if (!center)
        return;
    const QSize minimum = minimumSize() - arrowExtent();
    const QSize maximum = maximumSize() - arrowExtent();
    if (!minimum.isEmpty())
        center->setMinimumSize(minimum);
    if (!maximum.isEmpty())
        center->setMaximumSize(maximum);
}

void ArrowWidget::setVertexOffset(const QPoint &offset)
{
    if (d->vertexOffset == offset)
        return;
    d->vertexOffset = offset;
    update();
}

void ArrowWidget::drawShape(QPainter *painter, const QColor &color, int inset) const
{
    const Shape parts = shape(inset);
    const vellum::PainterGuard guard(painter);
    painter->setRenderHint(QPainter::Antialiasing);
    painter->setPen(Qt::NoPen);
    painter->setBrush(QBrush(color, Qt::SolidPattern));
    QPainterPath triangle;
    triangle.addPolygon(parts.triangle);
    triangle.closeSubpath();
    painter->drawPath(triangle);
    if (parts.body.isEmpty())
        return;
    QPainterPath body;
    body.addRoundedRect(parts.body, d->borderRadius, d->borderRadius);
    painter->drawPath(body);
}
