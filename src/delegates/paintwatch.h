#pragma once

#include <QObject>
#include <QPointer>
#include <QVector>

#include <functional>

class QAbstractItemView;
class QPainter;
class QRegion;
class QWidget;

namespace vellum {

/// Tells a delegate when what it noted while painting is out of date, so that it keeps a viewport's
/// worth and not one entry for every cell that was ever seen.
class PaintWatch : public QObject
{
public:
    /// \a forget is called before cells are noted anew.
    explicit PaintWatch(const std::function<void()> &forget);

    /// A cell is about to be painted for \a widget, the view or null.
    void cellPainted(const QPainter *painter, const QWidget *widget);

    bool eventFilter(QObject *watched, QEvent *event) override;

private:
    struct Watched
    {
        QPointer<const QAbstractItemView> view;
        QPointer<QWidget> viewport;
        bool painted;
    };

    Watched *find(const QWidget *widget);
    Watched *watch(const QWidget *widget);
    void fullPaintStarts(QWidget *viewport);
    void countForeign();

    const std::function<void()> m_forget;
    QVector<Watched> m_views;
    int m_foreignCells = 0;
    int m_sharedCells = 0;
};

} // namespace vellum
