#pragma once

#include <QRect>
#include <QWidget>

namespace vellum {

/// \a value within the extents that a widget can have, negative ones included. Sums of such values
/// stay far inside int, also in QRect's own arithmetic.
inline int safeExtent(qint64 value)
{
    return int(qBound<qint64>(-QWIDGETSIZE_MAX, value, QWIDGETSIZE_MAX));
}

/// A rectangle from sums of ints that a client chose freely, each part kept within safeExtent().
inline QRect safeRect(qint64 x, qint64 y, qint64 width, qint64 height)
{
    return {safeExtent(x), safeExtent(y), safeExtent(width), safeExtent(height)};
}

} // namespace vellum
