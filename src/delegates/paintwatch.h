#pragma once

#include <QModelIndex>
#include <QObject>
#include <QPointer>
#include <QSet>
#include <QVector>

#include <functional>

class QAbstractItemView;
class QPainter;
class QWidget;

namespace vellum {

/// Tells a delegate when to forget what it noted while painting, so that it keeps some viewports'
/// worth and not an entry for every cell that was ever seen.
class PaintWatch : public QObject
{
public:
    /// \a forget is called when all that can be seen is about to be painted and noted anew; false
    /// if this is no time to forget.
    explicit PaintWatch(const std::function<bool()> &forget);

    /// \a index is about to be painted for \a widget, the view or null.
    void cellPainted(const QPainter *painter, const QWidget *widget, const QModelIndex &index);

    bool eventFilter(QObject *watched, QEvent *event) override;

private:
    struct Watched
    {
        QPointer<const QAbstractItemView> view;
        QPointer<QWidget> viewport;
        bool paintsAll = true; ///< the latest paint event
        int cells = 0;         ///< painted in it
        int round = 0;         ///< cells of the latest event that painted all
    };

    Watched *find(const QWidget *widget);
    Watched *watch(const QWidget *widget);
    void paintStarts(Watched *entry, bool paintsAll);
    bool forget();

    const std::function<bool()> m_forget;
    QVector<Watched> m_views;
    QSet<QModelIndex> m_cells; ///< painted since the latest forgetting
};

} // namespace vellum
