#include "inputs/twosidegroove.h"

#include "common/safeint.h"

#include <cmath>

namespace vellum {

TwoSideGroove::TwoSideGroove(const QRect &groove, int minimum, int center, int maximum)
    : m_groove(groove)
    , m_minimum(minimum)
    , m_center(center)
    , m_maximum(maximum)
    , m_half(groove.width() * 0.5)
    , m_spanLeft(double(center) - minimum)
    , m_spanRight(double(maximum) - center)
    , m_scaleLeft(isValid() ? m_half / m_spanLeft : 1.0)
    , m_scaleRight(isValid() ? m_half / m_spanRight : 1.0)
{
}

bool TwoSideGroove::isValid() const
{
    return m_groove.width() > 0 && m_spanLeft >= 1 && m_spanRight >= 1;
}

int TwoSideGroove::xOf(int value) const
{
    if (value < m_center)
        return toInt((double(value) - m_minimum) * m_scaleLeft);
    return toInt(m_groove.x() + m_half + (double(value) - m_center) * m_scaleRight);
}

std::optional<int> TwoSideGroove::valueAt(int x) const
{
    const int toMiddle = m_groove.width() / 2;
    const double value = x >= m_groove.x() + toMiddle
        ? m_center + (double(x) - toMiddle - m_groove.x()) / m_scaleRight
        : m_minimum + x / m_scaleLeft;
    const double whole = std::trunc(value);
    if (whole < m_minimum || whole > m_maximum)
        return std::nullopt;
    return int(whole);
}

QRect TwoSideGroove::fill(int value, int height) const
{
    const int middle = xOf(m_center);
    const int end = xOf(value);
    const int y = m_groove.y() + (m_groove.height() - height) / 2;
    return {qMin(middle, end), y, qAbs(end - middle), height};
}

} // namespace vellum
