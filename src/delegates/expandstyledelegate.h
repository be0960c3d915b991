#pragma once

#include "delegates/tipstyledelegate.h"

#include <QSize>

/// A delegate with an arrow that folds a row: the arrow is stamped from a hidden button named
/// "pushBtn_nodeIconExpanded" for an expanded node, and for a collapsed one
/// "pushBtn_nodeIconUnexpanded", whose arrow points right, or "pushBtn_nodeIconUnexpandedLeft".
///
/// A row has an arrow where CusItemDataRole::RoleHasChildren is true and shows it expanded where
/// CusItemDataRole::RoleExpanded is. Where in the cell it stands is up to the subclass, which calls
/// paintExpand() from its paint(). GUI thread only.
class VELLUM_EXPORT ExpandStyleDelegate : public TipStyleDelegate
{
    Q_OBJECT

public:
    /// \a arrowRight: which way the arrow of a collapsed node points.
    ExpandStyleDelegate(QObject *parent, bool arrowRight);
    ~ExpandStyleDelegate() override;

    void clearPaintCusRectInfo() override;

    /// Draws the arrow of \a index at the left of the option's rectangle, centred in height, and
    /// notes that whole rectangle as the place that a press hits. The tip of the arrow, which the
    /// caller adds to the cell's; an empty one for a row without an arrow, and for null.
    virtual TipDelegateInfo paintExpand(QPainter *painter, const QStyleOptionButton &option,
                                        const QModelIndex &index) const;

    /// Size of the arrow in pixels, 16 by 16 at first; an invalid size is ignored.
    void setExpandIconSize(const QSize &size);
    QSize expandIconSize() const;

Q_SIGNALS:
    /// The left button was pressed on the arrow of \a index, which is to be in \a expanedState from
    /// now on; it is up to the view to fold the row.
    void signalCusIndexExpandState(QModelIndex index, bool expanedState);

protected:
    bool editorEvent(QEvent *event, QAbstractItemModel *model, const QStyleOptionViewItem &option,
                     const QModelIndex &index) override;

private:
    struct Private;
    const std::unique_ptr<Private> d;
};
