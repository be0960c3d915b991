#pragma once

#include <QRect>

#include <optional>

namespace vellum {

/// The groove of a slider with a centre in its middle: each half has its own scale from values to
/// pixels.
class TwoSideGroove
{
public:
    TwoSideGroove(const QRect &groove, int minimum, int center, int maximum);

    /// False if the groove has no width or a half not a single value; then nothing else is defined.
    bool isValid() const;
    /// Where the handle's middle and the end of the fill are for \a value. Below the centre it
    /// counts from the widget's edge, not the groove's: handle and fill agree, and clients' sheets
    /// are tuned to it.
    int xOf(int value) const;
    /// The value at \a x, if it lies in the range.
    std::optional<int> valueAt(int x) const;
    /// The bar of \a height pixels from the centre to \a value.
    QRect fill(int value, int height) const;

private:
    QRect m_groove;
    int m_minimum;
    int m_center;
    int m_maximum;
    double m_half;
    double m_spanLeft;
    double m_spanRight;
    double m_scaleLeft;
    double m_scaleRight;
};

} // namespace vellum
