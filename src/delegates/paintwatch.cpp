#include "delegates/paintwatch.h"

#include <QAbstractItemView>
#include <QPaintEvent>
#include <QPainter>
#include <QScrollBar>

#include <algorithm>

namespace vellum {

namespace {

/// More cells than a screen shows: so many are kept where no paint event reaches all of a view.
constexpr int kManyCells = 16384;

/// Whether a paint event for \a region reaches all that can be seen of \a viewport: what opaque
/// widgets cover, or a scroll area around the view clips, is never in the region.
bool coversAll(const QWidget *viewport, const QRegion &region)
{
    if (region.rectCount() == 1 && region.boundingRect().contains(viewport->rect()))
        return true;
    return viewport->visibleRegion().subtracted(region).isEmpty();
}

} // namespace

PaintWatch::PaintWatch(const std::function<bool()> &forget)
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
    m_views.append({view, viewport});
    return &m_views.last();
}

void PaintWatch::cellPainted(const QPainter *painter, const QWidget *widget,
                             const QModelIndex &index)
{
    m_cells.insert(index);
    Watched *entry = find(widget);
    if (!entry)
        entry = watch(widget);
    if (entry && painter->device() == entry->viewport.data())
        ++entry->cells;
    else if (m_cells.size() > kManyCells) // pictures come without a paint event
        forget();
}

bool PaintWatch::eventFilter(QObject *watched, QEvent *event)
{
    if (event->type() != QEvent::Paint)
        return false;
    auto *viewport = static_cast<QWidget *>(watched);
    const auto entry =
        std::find_if(m_views.begin(), m_views.end(),
                     [viewport](const Watched &other) { return other.viewport == viewport; });
    if (entry == m_views.end() || (entry->paintsAll && entry->cells == 0)) {
        // The view has got on without this delegate for a whole round.
        viewport->removeEventFilter(this);
        if (entry != m_views.end())
            m_views.erase(entry);
        return false;
    }
    paintStarts(entry, coversAll(viewport, static_cast<QPaintEvent *>(event)->region()));
    return false;
}

void PaintWatch::paintStarts(Watched *entry, bool paintsAll)
{
    if (entry->paintsAll)
        entry->round = entry->cells;
    entry->paintsAll = paintsAll;
    entry->cells = 0;
    // As long as the same cells are painted there is nothing to drop, and a delegate can read while
    // it paints what it noted in the round before.
    const QPointer<QWidget> viewport = entry->viewport;
    int inView = 0;
    for (const Watched &other : qAsConst(m_views))
        inView += other.view ? other.round : 0;
    const int most = paintsAll ? 2 * inView : qMax(kManyCells, 2 * inView);
    if (m_cells.size() <= most || !forget())
        return;
    for (const Watched &other : qAsConst(m_views)) {
        if (other.viewport && (!paintsAll || other.viewport != viewport))
            other.viewport->update(); // what it shows was forgotten, too
    }
}

bool PaintWatch::forget()
{
    if (!m_forget())
        return false;
    m_cells.clear();
    return true;
}

} // namespace vellum
