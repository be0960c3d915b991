#include "delegates/paintwatch.h"

#include <QAbstractItemView>
#include <QPaintEvent>
#include <QPainter>
#include <QScrollBar>

#include <algorithm>

namespace vellum {

namespace {

/// More cells than a screen shows: so many are kept where no view says when a round begins.
constexpr int kManyCells = 16384;

/// Whether a paint event for \a region reaches all that can be seen of \a viewport: children that
/// cover a part of it are cut out of the region.
bool coversAll(const QWidget *viewport, const QRegion &region)
{
    if (region.rectCount() == 1)
        return region.boundingRect().contains(viewport->rect());
    QRegion missing = QRegion(viewport->rect()).subtracted(region);
    const QObjectList &children = viewport->children();
    for (const QObject *child : children) {
        const auto *widget = qobject_cast<const QWidget *>(child);
        if (widget && widget->isVisible() && !widget->isWindow())
            missing -= widget->geometry();
    }
    return missing.isEmpty();
}

} // namespace

PaintWatch::PaintWatch(const std::function<void()> &forget)
    : m_forget(forget)
{
}

PaintWatch::Watched *PaintWatch::find(const QWidget *widget)
{
    const auto found = std::find_if(m_views.begin(), m_views.end(), [widget](const Watched &entry) {
        return widget && entry.view.data() == widget && entry.viewport;
    });
    return found == m_views.end() ? nullptr : found;
}

PaintWatch::Watched *PaintWatch::watch(const QWidget *widget)
{
    const auto *view = qobject_cast<const QAbstractItemView *>(widget);
    if (!view || !view->viewport())
        return nullptr;
    m_views.erase(
        std::remove_if(m_views.begin(), m_views.end(),
                       [](const Watched &entry) { return !entry.view || !entry.viewport; }),
        m_views.end());
    QWidget *viewport = view->viewport();
    viewport->installEventFilter(this);
    // What was noted counts from the viewport's corner, and a view that scrolls by moving its
    // pixels would not paint the cells anew where they stand then.
    for (const QScrollBar *bar : {view->horizontalScrollBar(), view->verticalScrollBar()}) {
        if (bar)
            connect(bar, &QScrollBar::valueChanged, viewport, QOverload<>::of(&QWidget::update),
                    Qt::UniqueConnection);
    }
    m_views.append({view, viewport, true});
    return &m_views.last();
}

void PaintWatch::cellPainted(const QPainter *painter, const QWidget *widget)
{
    Watched *entry = find(widget);
    if (!entry)
        entry = watch(widget);
    if (!entry || painter->device() != entry->viewport.data()) {
        countForeign();
        return;
    }
    entry->painted = true;
    ++m_sharedCells;
}

/// Cells in pictures come without a paint event, so only their number can bound what is kept.
void PaintWatch::countForeign()
{
    if (++m_foreignCells <= kManyCells)
        return;
    m_foreignCells = 0;
    m_forget();
}

bool PaintWatch::eventFilter(QObject *watched, QEvent *event)
{
    if (event->type() == QEvent::Paint) {
        auto *viewport = static_cast<QWidget *>(watched);
        if (coversAll(viewport, static_cast<QPaintEvent *>(event)->region()))
            fullPaintStarts(viewport);
    }
    return false;
}

void PaintWatch::fullPaintStarts(QWidget *viewport)
{
    const auto entry =
        std::find_if(m_views.begin(), m_views.end(),
                     [viewport](const Watched &other) { return other.viewport == viewport; });
    if (entry == m_views.end() || !entry->painted) {
        // The view has got on without this delegate for a whole round.
        viewport->removeEventFilter(this);
        if (entry != m_views.end())
            m_views.erase(entry);
        return;
    }
    entry->painted = false;
    m_foreignCells = 0;
    const int living =
        int(std::count_if(m_views.cbegin(), m_views.cend(),
                          [](const Watched &other) { return !other.view.isNull(); }));
    // Views that share a delegate would lose their cells with each other's rounds: they share the
    // clearing too, now and then, and paint all anew after it.
    if (living > 1 && m_sharedCells <= kManyCells)
        return;
    m_sharedCells = 0;
    m_forget();
    for (const Watched &other : qAsConst(m_views)) {
        if (other.viewport && other.viewport != viewport)
            other.viewport->update();
    }
}

} // namespace vellum
