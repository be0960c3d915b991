#include "inputs/cusslider.h"

#include "common/cuscolorconfig.h"
#include "common/restyle.h"
#include "common/safeint.h"
#include "common/saferect.h"
#include "delegates/svgtwin.h"
#include "inputs/sliderhandle.h"

#include <QCursor>
#include <QEvent>
#include <QLabel>
#include <QMouseEvent>
#include <QPainter>
#include <QPointer>
#include <QStyleOptionSlider>

namespace {

constexpr int kLabelPixelSize = 11;
constexpr int kJumpInset = 10;
constexpr int kTickHeight = 14;
constexpr int kTickWidth = 2;
constexpr double kTickInset = 5.0;
constexpr double kTickInsets = 11.0;
constexpr double kTextAboveHandle = 21.0;
constexpr int kRoomAboveSlider = 11;

using ValueToText = std::function<QString(int)>;

QString textFor(const ValueToText &valueToText, int value)
{
    // A callback that registers another one, or deletes its slider, must not end itself.
    const ValueToText callback = valueToText;
    return callback ? callback(value) : QString::number(value);
}

/// mapToGlobal() of a position that already counts from the parent. It is twice the position that
/// is meant, but all places are compared by it, so their order holds.
QPoint globalPlace(const QWidget *widget)
{
    return widget->mapToGlobal(widget->pos());
}

} // namespace

struct CusSlider::Private
{
    int validMin = 0;
    int validMax = 100;
    bool checkValidRange = false;
    QList<int> maskValues;
    QColor maskColor;
    QColor tickColor;
    SliderDrawType sliderDrawType = SLIDER_DRAW_DEFAULT;
    bool tickEnabled = false;
    int tickValue = 0;
    ValueToText valueToText;
    QPointer<QLabel> label;
    SliderTextPos textPos = TEXT_POS_NONE;
    bool allwaysShowText = true;
    int offsetY = 0;
    bool mousePressed = false;
    bool labelIsChild = false;
    // The slider chose the label's parent, so the label goes along when the slider is moved.
    bool labelParentIsOurs = true;
    QPoint lastGlobalPos;
    vellum::SliderHandle handle;
};

CusSlider::CusSlider(QWidget *parent)
    : CusSlider(Qt::Horizontal, parent)
{
}

CusSlider::CusSlider(Qt::Orientation orientation, QWidget *parent)
    : QSlider(orientation, parent)
    , d(std::make_unique<Private>())
{
    d->tickColor = CusColorConfig::instance()->highlightColor();
    setSingleStep(1);
    setPageStep(10);
    setMouseTracking(true);
    connect(this, &QSlider::valueChanged, this, &CusSlider::onValueChanged);
}

CusSlider::~CusSlider()
{
    delete d->label;
}

void CusSlider::registerValueToTextCb(const std::function<QString(int)> &callback)
{
    d->valueToText = callback;
    refreshLabel();
}

void CusSlider::setLabelTextPos(SliderTextPos position)
{
    d->textPos = position;
    if (position != TEXT_POS_NONE) {
        ensureLabel();
        refreshLabel();
    } else if (d->label) {
        d->label->hide();
        d->label->clear();
        d->label->resize(0, 0); // it is shown again with the slider, whatever the place
    }
}

CusSlider::SliderTextPos CusSlider::sliderTextPos() const
{
    return d->textPos;
}

void CusSlider::setOffsetY(int offset)
{
    d->offsetY = offset;
    refreshLabel();
}

void CusSlider::setAllwaysShowText(bool show)
{
    d->allwaysShowText = show;
}

bool CusSlider::allwaysShowText() const
{
    return d->allwaysShowText;
}

void CusSlider::enableLabelIsChild(bool isChild)
{
    d->labelIsChild = isChild;
    moveLabelTo(isChild ? this : parentWidget());
}

void CusSlider::setLabelParentWidget(QWidget *parent)
{
    moveLabelTo(parent);
}

void CusSlider::setTextLabelFontColor(const QColor &color)
{
    if (!color.isValid())
        return;
    QLabel *label = ensureLabel();
    QPalette palette = label->palette();
    palette.setColor(QPalette::WindowText, color);
    label->setPalette(palette);
}

void CusSlider::setTextLabelFontSize(int size)
{
    if (size <= 0)
        return;
    QLabel *label = ensureLabel();
    QFont font = label->font();
    font.setPixelSize(size);
    label->setFont(font);
    refreshLabel();
}

void CusSlider::setTextLabelStyleProperty(const char *name, const QVariant &value)
{
    QLabel *label = ensureLabel();
    label->setProperty(name, value);
    vellum::restyle(label);
    refreshLabel();
}

void CusSlider::setTickMark(int value)
{
    d->tickEnabled = true;
    d->tickValue = value;
}

void CusSlider::cleanTickMark()
{
    d->tickEnabled = false;
    d->tickValue = 0;
}

void CusSlider::setValidMin(int minimum)
{
    d->validMin = minimum;
}

int CusSlider::validMin() const
{
    return d->validMin;
}

void CusSlider::setValidMax(int maximum)
{
    d->validMax = maximum;
}

int CusSlider::validMax() const
{
    return d->validMax;
}

void CusSlider::setCheckValidRange(bool check)
{
    d->checkValidRange = check;
}

bool CusSlider::checkValidRange() const
{
    return d->checkValidRange;
}

void CusSlider::setMaskValue(const QList<int> &values, const QColor &color)
{
    d->maskValues = values;
    d->maskColor = color;
}

void CusSlider::setSliderDrawType(SliderDrawType type)
{
    d->sliderDrawType = type;
}

void CusSlider::setCustomGroveColor(const QColor & /*used*/, const QColor & /*unused*/) { }

bool CusSlider::isMouseHover() const
{
    return rect().contains(mapFromGlobal(QCursor::pos()));
}

void CusSlider::setValue(int value)
{
    if (d->mousePressed)
        return;
    const QPointer<CusSlider> alive(this);
    QSlider::setValue(value);
    if (alive && d->allwaysShowText)
        drawSliderText();
}

void CusSlider::onValueChanged(int /*value*/)
{
    const QPointer<CusSlider> alive(this);
    Q_EMIT signalSliderValueChange();
    if (alive && d->allwaysShowText)
        drawSliderText();
}

void CusSlider::setVisible(bool visible)
{
    QSlider::setVisible(visible);
    if (d->allwaysShowText)
        drawSliderText();
}

QColor CusSlider::getTickLineColor() const
{
    return d->tickColor;
}

int CusSlider::getSvgBtnState(const QRect &rect, const QStyleOptionSlider &option) const
{
    return int(vellum::svgTwinState(rect, option, this));
}

void CusSlider::drawSliderBtn(QPainter *painter, const QRect &rect,
                              const QStyleOptionSlider &option)
{
    d->handle.stamp(painter, rect, option, this);
}

void CusSlider::drawSliderHandler()
{
    QPainter painter(this);
    QStyleOptionSlider option;
    initStyleOption(&option);
    if (isSliderDown() || d->mousePressed)
        option.state |= QStyle::State_Sunken;
    d->handle.paint(&painter, option, this);
}

void CusSlider::mousePressEvent(QMouseEvent *event)
{
    const QPointer<CusSlider> alive(this);
    QSlider::mousePressEvent(event);
    if (!alive || event->button() != Qt::LeftButton)
        return;
    d->mousePressed = true;
    // The press says where the handle goes; paging on while the button is held would carry it away.
    setRepeatAction(SliderNoAction);
    update();
    const int way = width() - kJumpInset;
    if (way == 0)
        return;
    QStyleOptionSlider option;
    initStyleOption(&option);
    const double ratio = double(vellum::fromMinimumEdge(event->pos().x(), option)) / way;
    const double range = double(maximum()) - minimum();
    QAbstractSlider::setValue(vellum::toInt(minimum() + range * ratio));
}

void CusSlider::mouseReleaseEvent(QMouseEvent *event)
{
    const QPointer<CusSlider> alive(this);
    QSlider::mouseReleaseEvent(event);
    if (!alive || event->button() != Qt::LeftButton)
        return;
    d->mousePressed = false;
    update();
}

void CusSlider::mouseMoveEvent(QMouseEvent *event)
{
    // A release is lost where the value's signal opened a modal window.
    if (!(event->buttons() & Qt::LeftButton))
        d->mousePressed = false;
    if (d->checkValidRange && (value() < d->validMin || value() > d->validMax))
        return;
    const QPointer<CusSlider> alive(this);
    QSlider::mouseMoveEvent(event);
    if (!alive || !d->allwaysShowText || !rect().contains(event->pos()))
        return;
    drawSliderText();
    if (alive)
        showLabel();
}

void CusSlider::enterEvent(QEvent *event)
{
    QSlider::enterEvent(event);
    setCursor(Qt::PointingHandCursor);
    if (d->allwaysShowText)
        showLabel();
}

void CusSlider::leaveEvent(QEvent *event)
{
    QSlider::leaveEvent(event);
    setCursor(Qt::ArrowCursor);
    if (!d->allwaysShowText && d->label)
        d->label->hide();
}

void CusSlider::paintEvent(QPaintEvent *event)
{
    QSlider::paintEvent(event);
    if (d->tickEnabled && value() != d->tickValue && minimum() != maximum())
        drawTick();
    drawSliderHandler();
    if (d->textPos == TEXT_POS_NONE)
        return;
    const QPoint place = globalPlace(this);
    const bool moved = place != d->lastGlobalPos;
    d->lastGlobalPos = place;
    if (updateLabelParentWid() || moved)
        drawSliderText();
}

void CusSlider::showEvent(QShowEvent *event)
{
    if (d->allwaysShowText)
        showLabel();
    QSlider::showEvent(event);
}

void CusSlider::hideEvent(QHideEvent *event)
{
    // A release that a hidden or disabled slider never sees must not leave setValue() dead.
    d->mousePressed = false;
    if (d->label)
        d->label->hide();
    QSlider::hideEvent(event);
}

void CusSlider::changeEvent(QEvent *event)
{
    QSlider::changeEvent(event);
    if (event->type() == QEvent::EnabledChange && !isEnabled())
        d->mousePressed = false;
    else if (event->type() == QEvent::ParentChange && d->label && d->labelParentIsOurs)
        d->label->setParent(this);
}

void CusSlider::sliderChange(SliderChange change)
{
    if (change == SliderRangeChange)
        vellum::avoidFatalRange(this);
    QSlider::sliderChange(change);
}

/// The label is a widget that the style sheet has to polish, which would nearly double the cost of
/// a slider that shows no text.
QLabel *CusSlider::ensureLabel()
{
    if (d->label)
        return d->label;
    auto *label = new QLabel(this);
    d->label = label;
    label->setAlignment(Qt::AlignHCenter | Qt::AlignVCenter);
    label->setAttribute(Qt::WA_TransparentForMouseEvents);
    label->resize(0, 0);
    label->hide();
    QFont font = label->font();
    font.setPixelSize(kLabelPixelSize);
    label->setFont(font);
    return label;
}

void CusSlider::moveLabelTo(QWidget *parent)
{
    if (!parent)
        return;
    QLabel *label = ensureLabel();
    if (parent == label || label->isAncestorOf(parent))
        return;
    d->labelParentIsOurs = parent == this;
    if (parent == label->parentWidget())
        return;
    label->setParent(parent);
    refreshLabel();
}

void CusSlider::refreshLabel()
{
    if (d->allwaysShowText && isVisible())
        drawSliderText();
}

void CusSlider::showLabel()
{
    if (d->label && d->label->isHidden())
        d->label->show();
}

bool CusSlider::updateLabelParentWid()
{
    if (!d->label || d->textPos != TEXT_POS_ON_HANDLE)
        return false;
    QWidget *parent = d->label->parentWidget();
    const int top = globalPlace(this).y() - kRoomAboveSlider;
    while (parent && globalPlace(parent).y() > top)
        parent = parent->parentWidget();
    if (!parent || parent == d->label->parentWidget())
        return false;
    d->labelParentIsOurs = true;
    d->label->setParent(parent);
    return true;
}

void CusSlider::drawSliderText()
{
    if (d->textPos == TEXT_POS_NONE || !d->label)
        return;
    const QPointer<CusSlider> alive(this);
    const QString text = textFor(d->valueToText, value());
    if (!alive || !d->label)
        return;
    QStyleOptionSlider option;
    initStyleOption(&option);
    const QRect handle =
        style()->subControlRect(QStyle::CC_Slider, &option, QStyle::SC_SliderHandle, nullptr);
    const QRect textRect = fontMetrics().boundingRect(text);
    d->label->setText(text);
    d->label->resize(d->label->sizeHint());

    const int aboveY =
        vellum::safeExtent(qint64(d->offsetY) - handle.height() / 2 - textRect.height());
    QPoint pos;
    switch (d->textPos) {
    case TEXT_POS_LEFT:
        pos = QPoint(0, aboveY);
        break;
    case TEXT_POS_RIGHT:
        pos = QPoint(width() - textRect.width(), aboveY);
        break;
    case TEXT_POS_ON_HANDLE:
        pos = QPoint(int(handle.x() + handle.width() * 0.5 - d->label->width() * 0.5),
                     int(handle.y() + handle.height() * 0.5 - kTextAboveHandle));
        break;
    case TEXT_POS_FOLLOW_MOUSE:
        pos = followMousePos(textRect);
        break;
    default:
        break;
    }
    if (!alive || !d->label)
        return;
    pos = mapToGlobal(pos);
    if (const QWidget *parent = d->label->parentWidget())
        pos = parent->mapFromGlobal(pos);
    d->label->move(qMax(0, pos.x()), qMax(0, pos.y()));
    if (isVisible())
        showLabel();
}

QPoint CusSlider::followMousePos(const QRect &textRect)
{
    const QPoint mouse = mapFromGlobal(QCursor::pos());
    if (!rect().contains(mouse) && !d->mousePressed)
        return {};
    const int way = mouse.x() - x();
    QPoint pos(way - textRect.width() / 2, 0);
    if (!d->labelIsChild)
        pos.setY(vellum::safeExtent(-qint64(textRect.height() / 2) - d->offsetY));
    // The text that is measured is that of the place, counted from zero whatever the minimum is.
    const float perPixel = width() > 0 ? float(maximum()) / float(width()) : 0.0F;
    const QPointer<CusSlider> alive(this);
    const QString text = textFor(d->valueToText, vellum::toInt(double(float(way) * perPixel)));
    if (!alive || !d->label || !d->labelIsChild)
        return pos;
    pos.setX(qMax(0, pos.x()));
    const qint64 excess = qint64(pos.x()) + d->label->fontMetrics().horizontalAdvance(text)
        - (rect().x() + rect().width());
    if (excess > 0)
        pos.setX(vellum::safeExtent(pos.x() - excess));
    return pos;
}

void CusSlider::drawTick()
{
    const auto scale = float((width() - kTickInsets) / (double(maximum()) - minimum()));
    const auto distance = float(double(d->tickValue) - minimum());
    const int place =
        vellum::toInt(double(distance * scale) + kTickInset, -QWIDGETSIZE_MAX, QWIDGETSIZE_MAX);
    QStyleOptionSlider option;
    initStyleOption(&option);
    const int x = vellum::fromMinimumEdge(place, option);
    QPainter painter(this);
    painter.setPen(QPen(d->tickColor, kTickWidth));
    painter.drawLine(x, rect().y(), x, rect().y() + kTickHeight);
}
