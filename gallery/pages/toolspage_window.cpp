#include "pagekit.h"
#include "pages/toolspage.h"

#include <Vellum/CusColorConfig>
#include <Vellum/CusMousePressedMove>
#include <Vellum/CusUiCommonFun>

#include <QGridLayout>
#include <QLabel>
#include <QMouseEvent>
#include <QPainter>

#include <algorithm>

namespace {

constexpr QSize kMapSize(640, 320);
constexpr QRect kWindow(40, 28, 560, 264);
constexpr int kBorder = 16;
constexpr int kCaptionHeight = 52;
constexpr int kButtonWidth = 40;
constexpr int kButtons = 3;
constexpr QSize kLegendPatch(16, 16);
constexpr QSize kTile(96, 56);
constexpr int kFieldHeight = 176;

struct Hit
{
    HitType type;
    QString name;
    int color; ///< index in the theme's palette, -1 for none
};

const QVector<Hit> &hits()
{
    static const QVector<Hit> all = {
        {Hit_TopLeft, QStringLiteral("Hit_TopLeft"), 1},
        {Hit_Top, QStringLiteral("Hit_Top"), 5},
        {Hit_TopRight, QStringLiteral("Hit_TopRight"), 6},
        {Hit_Left, QStringLiteral("Hit_Left"), 8},
        {Hit_Right, QStringLiteral("Hit_Right"), 2},
        {Hit_BottomLeft, QStringLiteral("Hit_BottomLeft"), 7},
        {Hit_Bottom, QStringLiteral("Hit_Bottom"), 4},
        {Hit_BottomRight, QStringLiteral("Hit_BottomRight"), 3},
        {Hit_Caption, QStringLiteral("Hit_Caption"), 9},
        {Hit_Excluded, QStringLiteral("Hit_Excluded"), 0},
        {Hit_Client, QStringLiteral("Hit_Client"), -1},
    };
    return all;
}

const Hit &hitOf(HitType type)
{
    return *std::find_if(hits().begin(), hits().end(),
                         [type](const Hit &hit) { return hit.type == type; });
}

QColor colorOf(const Hit &hit)
{
    const CusColorConfig *theme = CusColorConfig::instance();
    return hit.color < 0 ? theme->bubbleColor() : theme->getCommonColorByIndex(hit.color);
}

QRect captionRect()
{
    return {kWindow.left() + kBorder, kWindow.top() + kBorder, kWindow.width() - 2 * kBorder,
            kCaptionHeight - kBorder};
}

QList<QRect> buttonRects()
{
    QList<QRect> rects;
    const QRect caption = captionRect();
    for (int i = kButtons; i > 0; --i)
        rects.append(QRect(caption.right() + 1 - i * kButtonWidth, caption.top(), kButtonWidth,
                           caption.height()));
    return rects;
}

HitType hitAt(const QPoint &point)
{
    return hitTest(point.x(), point.y(), kBorder, kWindow, captionRect(), buttonRects());
}

/// The answer of every pixel as its colour, outside the window dimmed, and a probe that follows the
/// mouse.
class HitMap : public QWidget
{
public:
    explicit HitMap(QLabel *result);

protected:
    void paintEvent(QPaintEvent *event) override;
    void mouseMoveEvent(QMouseEvent *event) override { setProbe(event->pos()); }

private:
    void setProbe(const QPoint &point);

    QLabel *m_result;
    QImage m_map{kMapSize, QImage::Format_RGB32};
    QPoint m_probe;
};

HitMap::HitMap(QLabel *result)
    : m_result(result)
{
    setFixedSize(kMapSize);
    setMouseTracking(true);
    setCursor(Qt::CrossCursor);
    for (int y = 0; y < m_map.height(); ++y) {
        for (int x = 0; x < m_map.width(); ++x) {
            const QColor color = colorOf(hitOf(hitAt({x, y})));
            m_map.setPixelColor(x, y, kWindow.contains(x, y) ? color : color.darker(260));
        }
    }
    setProbe({180, 66});
}

void HitMap::setProbe(const QPoint &point)
{
    m_probe = point;
    const Hit &hit = hitOf(hitAt(point));
    m_result->setText(QStringLiteral("x %1, y %2: %3, %4")
                          .arg(point.x())
                          .arg(point.y())
                          .arg(hit.name)
                          .arg(hit.type));
    update();
}

void HitMap::paintEvent(QPaintEvent * /*event*/)
{
    const CusColorConfig *theme = CusColorConfig::instance();
    QPainter painter(this);
    painter.drawImage(rect(), m_map);
    painter.setPen(theme->mainTextColor());
    painter.drawRect(kWindow.adjusted(0, 0, -1, -1));
    painter.drawText(captionRect().adjusted(12, 0, 0, 0), Qt::AlignLeft | Qt::AlignVCenter,
                     QStringLiteral("Live view"));
    painter.drawText(kWindow.adjusted(0, kCaptionHeight, 0, 0), Qt::AlignCenter,
                     QStringLiteral("client area"));
    const QList<QRect> buttons = buttonRects();
    const QRect minimize(buttons.at(0).center() - QPoint(5, 0), QSize(11, 1));
    painter.fillRect(minimize, theme->mainTextColor());
    painter.drawRect(QRect(buttons.at(1).center() - QPoint(5, 5), QSize(10, 10)));
    const QPoint middle = buttons.at(2).center();
    painter.setRenderHint(QPainter::Antialiasing);
    painter.setPen(QPen(theme->mainTextColor(), 1.5));
    painter.drawLine(middle - QPoint(5, 5), middle + QPoint(5, 5));
    painter.drawLine(middle + QPoint(5, -5), middle + QPoint(-5, 5));
    painter.setPen(QPen(theme->bakcgroundColor(), 4));
    painter.drawEllipse(QPointF(m_probe) + QPointF(0.5, 0.5), 6, 6);
    painter.setPen(QPen(theme->mainTextColor(), 2));
    painter.drawEllipse(QPointF(m_probe) + QPointF(0.5, 0.5), 6, 6);
}

QWidget *legend()
{
    auto *box = new QWidget;
    auto *grid = new QGridLayout(box);
    grid->setContentsMargins(0, 0, 0, 0);
    grid->setHorizontalSpacing(12);
    grid->setVerticalSpacing(4);
    for (int row = 0; row < hits().size(); ++row) {
        const Hit &hit = hits().at(row);
        QPixmap patch(kLegendPatch);
        patch.fill(colorOf(hit));
        auto *color = new QLabel;
        color->setPixmap(patch);
        auto *value = PageKit::caption(QString::number(hit.type));
        value->setAlignment(Qt::AlignRight | Qt::AlignVCenter);
        grid->addWidget(color, row, 0);
        auto *name = PageKit::caption(hit.name);
        name->setWordWrap(false);
        grid->addWidget(name, row, 1);
        grid->addWidget(value, row, 2);
    }
    grid->setColumnStretch(1, 1);
    return box;
}

QString sides(int bits)
{
    static const QStringList names = {QStringLiteral("left"), QStringLiteral("top"),
                                      QStringLiteral("right"), QStringLiteral("bottom")};
    QStringList found;
    for (int i = 0; i < names.size(); ++i) {
        if (bits & (1 << i))
            found.append(names.at(i));
    }
    return found.isEmpty() ? QStringLiteral("inside") : found.join(QStringLiteral(" and "));
}

/// A tile that is dragged within, and out of, a field.
class DragField : public QWidget
{
public:
    explicit DragField(QLabel *result);

protected:
    void paintEvent(QPaintEvent *event) override;
    void resizeEvent(QResizeEvent * /*event*/) override { report(); }
    void mousePressEvent(QMouseEvent *event) override;
    void mouseMoveEvent(QMouseEvent *event) override;
    void mouseReleaseEvent(QMouseEvent *event) override;

private:
    QRect field() const { return rect().adjusted(32, 20, -32, -20); }
    void report();

    QLabel *m_result;
    CusMousePressedMove m_drag;
    QRect m_tile{QPoint(364, 64), kTile};
};

DragField::DragField(QLabel *result)
    : m_result(result)
{
    setFixedHeight(kFieldHeight);
    setCursor(Qt::OpenHandCursor);
}

void DragField::paintEvent(QPaintEvent * /*event*/)
{
    const CusColorConfig *theme = CusColorConfig::instance();
    QPainter painter(this);
    painter.fillRect(rect(), theme->bakcgroundColor());
    painter.setPen(QPen(theme->subTextColor(), 1, Qt::DashLine));
    painter.drawRect(field().adjusted(0, 0, -1, -1));
    painter.drawText(field().adjusted(8, 4, 0, 0), Qt::AlignLeft | Qt::AlignTop,
                     QStringLiteral("bounds"));
    const bool inside = judgeRectOutBounds(m_tile, field()) == 0;
    painter.fillRect(m_tile, inside ? theme->mainColor() : theme->danger2Color());
    painter.setPen(theme->mainTextColor());
    painter.drawText(m_tile, Qt::AlignCenter, QStringLiteral("Drag me"));
}

void DragField::mousePressEvent(QMouseEvent *event)
{
    if (m_tile.contains(event->pos()))
        m_drag.mousePressEvent(event);
    report();
}

void DragField::mouseMoveEvent(QMouseEvent *event)
{
    m_drag.mouseMoveEvent(event);
    int dx = 0;
    int dy = 0;
    if (m_drag.getMovedDxDy(dx, dy))
        m_tile.translate(dx, dy);
    update();
    report();
}

void DragField::mouseReleaseEvent(QMouseEvent *event)
{
    m_drag.mouseReleaseEvent(event);
    report();
}

void DragField::report()
{
    int x = 0;
    int y = 0;
    const bool running = m_drag.getCurMovedXY(x, y);
    if (!running)
        m_drag.getMovedXY(x, y);
    const int bits = judgeRectOutBounds(m_tile, field());
    m_result->setText(QStringLiteral("%1 %2, %3.   Out of bounds: %4, %5")
                          .arg(running ? QStringLiteral("Dragging") : QStringLiteral("Last drag"))
                          .arg(x)
                          .arg(y)
                          .arg(bits)
                          .arg(sides(bits)));
}

} // namespace

QWidget *ToolCards::hitTestMap()
{
    auto *box = new QWidget;
    auto *result = PageKit::signalLine();
    auto *line = new QHBoxLayout(box);
    line->setContentsMargins(0, 0, 0, 0);
    line->setSpacing(24);
    line->addWidget(new HitMap(result), 0, Qt::AlignTop);
    auto *column = new QVBoxLayout;
    column->setSpacing(8);
    column->addWidget(result);
    column->addWidget(legend());
    column->addWidget(PageKit::caption(
        QStringLiteral("Each band is tested along its own axis, so it reaches beyond the window "
                       "(dimmed). The numbers are those of WM_NCHITTEST.")));
    column->addStretch(1);
    line->addLayout(column, 1);
    return box;
}

QWidget *ToolCards::drag()
{
    auto *box = new QWidget;
    auto *column = new QVBoxLayout(box);
    column->setContentsMargins(0, 0, 0, 0);
    column->setSpacing(8);
    auto *result = PageKit::signalLine();
    column->addWidget(new DragField(result));
    column->addWidget(result);
    column->addStretch(1);
    return box;
}
