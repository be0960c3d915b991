#pragma once

#include "delegates/expandstyledelegate.h"

/// The rows of a check list or check tree: a check box at the left where Qt::CheckStateRole is
/// valid, the text, and the arrow of a row with children at the right.
///
/// | left press on | effect |
/// |---|---|
/// | the arrow's place | signalCusIndexExpandState() where the row has an arrow |
/// | any other place of the cell | the check state is written to the model and told |
/// | a place of a double click | nothing, so that it doesn't toggle twice |
///
/// Space toggles as in any delegate of Qt, without the signal. Tips of arrow and shortened text
/// show with setEnableMultiDelegate(true). GUI thread only.
class VELLUM_EXPORT CheckAndExpandDelegate : public ExpandStyleDelegate
{
    Q_OBJECT

public:
    explicit CheckAndExpandDelegate(QObject *parent = nullptr);
    ~CheckAndExpandDelegate() override;

    void paint(QPainter *painter, const QStyleOptionViewItem &option,
               const QModelIndex &index) const override;
    /// Qt's width, and sizeHintHeight as the height, 30 at least.
    QSize sizeHint(const QStyleOptionViewItem &option, const QModelIndex &index) const override;
    void clearPaintCusRectInfo() override;

    /// Pixels, 14 by 14 at first; an invalid size is ignored.
    void setCheckBoxSize(const QSize &size);
    QSize getCheckBoxSize() const;
    /// Pixels between check box, text and arrow, 5 at first; a negative value is ignored.
    void setSpacing(int spacing);
    int getSpacing() const;
    /// Pixels left of the check box and right of the arrow, 5 at first.
    void setLeftMargin(int margin);
    int getLeftMargin() const;

Q_SIGNALS:
    /// A press wrote \a state to the model. \a index is invalid if the model reset itself or
    /// removed the row over it.
    void signalDelegateChekcChanged(Qt::CheckState state, QModelIndex index);

protected:
    bool editorEvent(QEvent *event, QAbstractItemModel *model, const QStyleOptionViewItem &option,
                     const QModelIndex &index) override;
    void initStyleOption(QStyleOptionViewItem *option, const QModelIndex &index) const override;

private:
    bool togglesAt(const QEvent *event, const QModelIndex &index) const;

    struct Private;
    const std::unique_ptr<Private> d;
};
