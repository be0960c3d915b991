#include "inputs/sliderhandle.h"

#include "common/painterguard.h"
#include "common/safeint.h"
#include "delegates/styledelegatecomfun.h"
#include "delegates/svgtwin.h"

#include <QSlider>
#include <QStyleOptionButton>

namespace vellum {

namespace {

/// One for all sliders that there are: it has no state of its own, and to make it costs more than
/// to make a slider.
std::shared_ptr<CusSvgPushButton> sharedTwin()
{
    static std::weak_ptr<CusSvgPushButton> shared;
    std::shared_ptr<CusSvgPushButton> twin = shared.lock();
    if (!twin) {
        twin = makeSvgTwin(QStringLiteral("btn_sliderHandle"));
        shared = twin;
    }
    return twin;
}

} // namespace

SliderHandle::SliderHandle()
    : m_twin(sharedTwin())
{
}

SliderHandle::~SliderHandle() = default;

QRect SliderHandle::rect(const QStyleOptionSlider &option, const QSlider *slider)
{
    QRect handle = slider->style()->subControlRect(QStyle::CC_Slider, &option,
                                                   QStyle::SC_SliderHandle, slider);
    if (handle.x() < 0)
        handle.moveLeft(0);
    const int end = option.rect.x() + option.rect.width();
    if (handle.x() + handle.width() > end)
        handle.moveLeft(end - handle.width());
    return handle;
}

void SliderHandle::stamp(QPainter *painter, const QRect &rect, const QStyleOptionSlider &option,
                         const QSlider *slider) const
{
    QStyleOptionButton button;
    button.rect = rect;
    button.state = svgTwinState(rect, option, slider);
    StyleDelegateComFun::drawSvgBtn(painter, &button, m_twin.get(), slider->style(),
                                    CusSvgPushButton::DrawStype_Delegate);
}

void SliderHandle::paint(QPainter *painter, QStyleOptionSlider option, const QSlider *slider) const
{
    const QRect handle = rect(option, slider);
    option.subControls = QStyle::SC_SliderGroove;
    if (option.tickPosition != QSlider::NoTicks)
        option.subControls |= QStyle::SC_SliderTickmarks;
    option.activeSubControls &= ~QStyle::SC_SliderHandle;
    {
        // Clears what the style has drawn as its own handle. Anywhere else a sheet's ground and
        // groove would cover the filled part, the tick and what a derived slider has drawn.
        const PainterGuard guard(painter);
        painter->setClipRect(handle, Qt::IntersectClip);
        slider->style()->drawComplexControl(QStyle::CC_Slider, &option, painter, slider);
    }
    stamp(painter, handle, option, slider);
}

int fromMinimumEdge(int x, const QStyleOptionSlider &option)
{
    if (option.orientation != Qt::Horizontal || !option.upsideDown)
        return x;
    return toInt(double(option.rect.x()) + option.rect.width() - 1 - x);
}

void avoidFatalRange(QSlider *slider)
{
    constexpr qint64 kFatal = qint64(1) << 31; // twice that is 0 in 32 bits
    if (qint64(slider->maximum()) - slider->minimum() == kFatal)
        slider->setMaximum(slider->maximum() - 1);
}

} // namespace vellum
