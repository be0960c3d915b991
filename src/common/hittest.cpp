#include "common/cusuicommonfun.h"

#include <QWidget>

#include <algorithm>

namespace {

/// Inclusive edges in 64 bits: a rectangle at the end of int's range must not overflow.
struct Edges
{
    explicit Edges(const QRect &rect)
        : left(rect.left())
        , top(rect.top())
        , right(rect.right())
        , bottom(rect.bottom())
    {
    }

    Edges(const QPoint &topLeft, const QSize &size)
        : left(topLeft.x())
        , top(topLeft.y())
        , right(left + size.width() - 1)
        , bottom(top + size.height() - 1)
    {
    }

    qint64 left;
    qint64 top;
    qint64 right;
    qint64 bottom;
};

bool within(qint64 low, qint64 value, qint64 high)
{
    return low <= value && value <= high;
}

int outBoundsBits(const Edges &edges, const Edges &bounds)
{
    return (edges.left < bounds.left ? 1 : 0) | (edges.top < bounds.top ? 2 : 0)
        | (edges.right > bounds.right ? 4 : 0) | (edges.bottom > bounds.bottom ? 8 : 0);
}

} // namespace

HitType hitTest(int x, int y, int border, const QRect &rect)
{
    const Edges edges(rect);
    const bool left = within(edges.left, x, edges.left + border);
    const bool right = within(edges.right - border, x, edges.right);
    const bool top = within(edges.top, y, edges.top + border);
    const bool bottom = within(edges.bottom - border, y, edges.bottom);

    if (top && left)
        return Hit_TopLeft;
    if (top && right)
        return Hit_TopRight;
    if (bottom && left)
        return Hit_BottomLeft;
    if (bottom && right)
        return Hit_BottomRight;
    // A window thinner than its borders is sized at the top.
    if (top)
        return Hit_Top;
    if (bottom)
        return Hit_Bottom;
    if (left)
        return Hit_Left;
    return right ? Hit_Right : Hit_Client;
}

HitType hitTest(int x, int y, int border, const QRect &rect, const QRect &captionRect,
                const QList<QRect> &excludedRects)
{
    const HitType frame = hitTest(x, y, border, rect);
    if (frame != Hit_Client)
        return frame;
    // Before the caption, so that the window's buttons in it stay clickable.
    const bool excluded = std::any_of(excludedRects.begin(), excludedRects.end(),
                                      [x, y](const QRect &area) { return area.contains(x, y); });
    if (excluded)
        return Hit_Excluded;
    return captionRect.contains(x, y) ? Hit_Caption : Hit_Client;
}

int judgeRectOutBounds(const QRect &rect, const QRect &bounds)
{
    return outBoundsBits(Edges(rect), Edges(bounds));
}

int judgeWindowOutBounds(QWidget *widget, const QRect &bounds)
{
    if (!widget)
        return 0;
    return outBoundsBits(Edges(widget->mapToGlobal(QPoint(0, 0)), widget->size()), Edges(bounds));
}
