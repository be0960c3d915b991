#include "inputs/custicktwosideslider.h"

#include "inputs/twosidegroove.h"

#include <QEvent>
#include <QMouseEvent>
#include <QPainter>
#include <QPointer>
#include <QStyleOptionSlider>

namespace {

constexpr int kTickHeight = 14;
constexpr int kTickWidth = 2;
constexpr int kFillHeight = 4;

QRect grooveRect(const QSlider *slider, const QStyleOptionSlider &option)
{
    return slider->style()->subControlRect(QStyle::CC_Slider, &option, QStyle::SC_SliderGroove,
                                           slider);
}

} // namespace

struct CusTickTwoSideSlider::Private
{
    int centerVal = 0;
    bool dragging = false;
    bool handleHovered = false;
    QColor usedGrooveColor{0x42, 0x9E, 0xF6};
};

CusTickTwoSideSlider::CusTickTwoSideSlider(QWidget *parent)
    : CusTickTwoSideSlider(Qt::Horizontal, parent)
{
}

CusTickTwoSideSlider::CusTickTwoSideSlider(Qt::Orientation orientation, QWidget *parent)
    : CusSlider(orientation, parent)
    , d(std::make_unique<Private>())
{
    // The halves are drawn from the left, so the keys must not change places with the layout.
    setLayoutDirection(Qt::LeftToRight);
}

CusTickTwoSideSlider::~CusTickTwoSideSlider() = default;

void CusTickTwoSideSlider::setCenterVal(int value)
{
    d->centerVal = value;
    update();
}

void CusTickTwoSideSlider::setUsedGrooveBrushColor(const QColor &color)
{
    if (!color.isValid())
        return;
    d->usedGrooveColor = color;
    update();
}

QColor CusTickTwoSideSlider::getUsedGrooveBrushColor() const
{
    return d->usedGrooveColor;
}

void CusTickTwoSideSlider::mousePressEvent(QMouseEvent *event)
{
    const QPointer<CusTickTwoSideSlider> alive(this);
    // CusSlider's own jump has another scale. NOLINTNEXTLINE(bugprone-parent-virtual-call)
    QSlider::mousePressEvent(event); // clazy:exclude=skipped-base-method
    if (!alive || event->button() != Qt::LeftButton)
        return;
    // The press says where the handle goes; paging on while the button is held would carry it away.
    setRepeatAction(SliderNoAction);
    if (goTo(event->pos()) && alive && handleRect().contains(event->pos())) {
        d->dragging = true;
        update();
    }
}

void CusTickTwoSideSlider::mouseReleaseEvent(QMouseEvent *event)
{
    const QPointer<CusTickTwoSideSlider> alive(this);
    // CusSlider's own jump has another scale. NOLINTNEXTLINE(bugprone-parent-virtual-call)
    QSlider::mouseReleaseEvent(event); // clazy:exclude=skipped-base-method
    if (!alive)
        return;
    d->dragging = false;
    update();
}

void CusTickTwoSideSlider::mouseMoveEvent(QMouseEvent *event)
{
    const QPointer<CusTickTwoSideSlider> alive(this);
    // A release is lost where the value's signal opened a modal window.
    if (!(event->buttons() & Qt::LeftButton))
        d->dragging = false;
    // CusSlider's own jump has another scale. NOLINTNEXTLINE(bugprone-parent-virtual-call)
    QSlider::mouseMoveEvent(event); // clazy:exclude=skipped-base-method
    if (alive && d->dragging)
        goTo(event->pos());
    if (!alive)
        return;
    // QSlider repaints for a cursor that comes over the style's handle, which is elsewhere.
    const bool hovered = handleRect().contains(event->pos());
    if (hovered != d->handleHovered) {
        d->handleHovered = hovered;
        update();
    }
}

void CusTickTwoSideSlider::paintEvent(QPaintEvent * /*event*/)
{
    drawCenterLenTwoSide();
}

void CusTickTwoSideSlider::hideEvent(QHideEvent *event)
{
    d->dragging = false;
    CusSlider::hideEvent(event);
}

void CusTickTwoSideSlider::changeEvent(QEvent *event)
{
    CusSlider::changeEvent(event);
    if (event->type() == QEvent::EnabledChange && !isEnabled())
        d->dragging = false;
}

/// Stored, so that a later change of the range leaves the centre where it was first drawn.
int CusTickTwoSideSlider::center()
{
    if (d->centerVal < 1)
        d->centerVal = int((qint64(maximum()) - minimum()) / 2);
    return d->centerVal;
}

/// Where the handle is drawn; empty while it isn't.
QRect CusTickTwoSideSlider::handleRect()
{
    QStyleOptionSlider option;
    initStyleOption(&option);
    option.subControls = QStyle::SC_SliderHandle;
    const vellum::TwoSideGroove sides(grooveRect(this, option), minimum(), center(), maximum());
    if (!sides.isValid())
        return {};
    QRect handle =
        style()->subControlRect(QStyle::CC_Slider, &option, QStyle::SC_SliderHandle, this);
    handle.moveLeft(sides.xOf(value()) - handle.width() / 2);
    return handle;
}

/// Sets the value at \a pos; false if there is none.
bool CusTickTwoSideSlider::goTo(const QPoint &pos)
{
    QStyleOptionSlider option;
    initStyleOption(&option);
    const vellum::TwoSideGroove sides(grooveRect(this, option), minimum(), center(), maximum());
    if (!sides.isValid())
        return false;
    const std::optional<int> value = sides.valueAt(pos.x());
    if (value)
        CusSlider::setValue(*value);
    return value.has_value();
}

void CusTickTwoSideSlider::drawCenterLenTwoSide()
{
    QPainter painter(this);
    QStyleOptionSlider option;
    initStyleOption(&option);
    if (isSliderDown() || d->dragging)
        option.state |= QStyle::State_Sunken;
    option.subControls = QStyle::SC_SliderGroove;
    style()->drawComplexControl(QStyle::CC_Slider, &option, &painter, this);
    const QRect groove = grooveRect(this, option);
    const vellum::TwoSideGroove sides(groove, minimum(), center(), maximum());
    if (!sides.isValid())
        return;
    const int tick = groove.x() + groove.width() / 2;
    painter.setPen(QPen(getTickLineColor(), kTickWidth));
    painter.drawLine(tick, rect().y(), tick, rect().y() + kTickHeight);
    if (value() != center()) {
        painter.setRenderHint(QPainter::Antialiasing);
        painter.setPen(Qt::NoPen);
        painter.setBrush(d->usedGrooveColor);
        painter.drawRect(sides.fill(value(), kFillHeight));
    }
    option.subControls = QStyle::SC_SliderHandle;
    drawSliderBtn(&painter, handleRect(), option);
}
