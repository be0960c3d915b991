#pragma once

#include <QtGlobal>

#include <memory>

class CusSvgPushButton;
class QPainter;
class QRect;
class QSlider;
class QStyleOptionSlider;

namespace vellum {

/// The handle of a slider: a hidden button named "btn_sliderHandle", whose pictures are stamped
/// where the style has its own handle.
class SliderHandle
{
public:
    SliderHandle();
    ~SliderHandle();

    /// The style's rectangle, moved so that its left and right edges lie within the option's.
    static QRect rect(const QStyleOptionSlider &option, const QSlider *slider);

    /// Draws the handle into \a rect.
    void stamp(QPainter *painter, const QRect &rect, const QStyleOptionSlider &option,
               const QSlider *slider) const;
    /// Draws the handle where rect() says, on the style's groove.
    void paint(QPainter *painter, QStyleOptionSlider option, const QSlider *slider) const;

private:
    Q_DISABLE_COPY(SliderHandle)
    std::shared_ptr<CusSvgPushButton> m_twin;
};

/// \a x counted from the edge where a horizontal slider has its minimum, which is the right one in
/// a right-to-left layout; \a x itself for a vertical slider.
int fromMinimumEdge(int x, const QStyleOptionSlider &option);

/// Takes 1 off the maximum where the range is 2^31, by which Qt's styles divide by zero.
void avoidFatalRange(QSlider *slider);

} // namespace vellum
