#pragma once

#include <cmath>
#include <limits>

namespace vellum {

/// \a value cut towards zero and kept within \a low to \a high; NaN counts as 0. A plain cast of
/// NaN, of an infinity or of a value outside int's range is undefined.
inline int toInt(double value, int low = std::numeric_limits<int>::min(),
                 int high = std::numeric_limits<int>::max())
{
    if (std::isnan(value))
        value = 0.0;
    if (value <= low)
        return low;
    return value >= high ? high : static_cast<int>(value);
}

} // namespace vellum
