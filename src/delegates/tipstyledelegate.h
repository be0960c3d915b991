#pragma once

#include "vellum_export.h"

#include <QList>
#include <QRect>
#include <QString>
#include <QStyledItemDelegate>

#include <memory>

class BasicDelegateEditor;
class QStyleOptionButton;

/// One tip of a cell: the part of the viewport that it belongs to, in the viewport's pixels, and
/// its text, plain with line feeds or rich.
struct VELLUM_EXPORT TipDelegateInfo
{
    TipDelegateInfo() = default;
    TipDelegateInfo(const QRect &rect, const QString &text = QString());

    /// Two tips are the same when they speak for the same rectangle, whatever they say.
    bool operator==(const TipDelegateInfo &other) const { return tipRect == other.tipRect; }
    bool operator!=(const TipDelegateInfo &other) const { return tipRect != other.tipRect; }

    QRect tipRect;
    QString tipText;
};

Q_DECLARE_TYPEINFO(TipDelegateInfo, Q_MOVABLE_TYPE);

/// The base of every item delegate: tips by rectangle, hover of whole rows, the pressed cell, text
/// that is elided and coloured by the item data roles, check boxes and radio buttons stamped from
/// hidden twins, and an editor that can be exchanged.
///
/// A subclass calls paint() of its base first, measures its parts with the protected helpers, and
/// notes tips and hit rectangles while it paints; editorEvent() only reads what the last paint
/// noted, so a cell that was not painted has neither. Both count from the viewport's corner, so a
/// scroll makes the view paint all. Now and then, when a view starts to paint all of its viewport,
/// tips and rectangles of earlier rounds are forgotten (clearPaintCusRectInfo()): some viewports'
/// worth is kept.
///
/// The twins are buttons named "btn_checkBoxChecked", "btn_checkBoxUnchecked", "btn_radioChecked"
/// and "btn_radioUnChecked", which only the application's style sheet reaches. One delegate may
/// serve several views. GUI thread only.
class VELLUM_EXPORT TipStyleDelegate : public QStyledItemDelegate
{
    Q_OBJECT

public:
    explicit TipStyleDelegate(QObject *parent = nullptr);
    ~TipStyleDelegate() override;

    /// Without a painter nothing is drawn.
    void paint(QPainter *painter, const QStyleOptionViewItem &option,
               const QModelIndex &index) const override;
    /// Qt's width, and sizeHintHeight as the height.
    QSize sizeHint(const QStyleOptionViewItem &option, const QModelIndex &index) const override;
    QWidget *createEditor(QWidget *parent, const QStyleOptionViewItem &option,
                          const QModelIndex &index) const override;
    void destroyEditor(QWidget *editor, const QModelIndex &index) const override;
    void setEditorData(QWidget *editor, const QModelIndex &index) const override;
    void setModelData(QWidget *editor, QAbstractItemModel *model,
                      const QModelIndex &index) const override;
    void updateEditorGeometry(QWidget *editor, const QStyleOptionViewItem &option,
                              const QModelIndex &index) const override;
    /// Shows the tip of the place under the cursor, or hides the last one.
    bool helpEvent(QHelpEvent *event, QAbstractItemView *view, const QStyleOptionViewItem &option,
                   const QModelIndex &index) override;

    /// Forgets the hit rectangles of the cells. Nothing here; a subclass that keeps some overrides
    /// it. Called by views whose cells may have moved, and before a view paints all of its cells.
    virtual void clearPaintCusRectInfo();
    /// Changes the look of the cell under a pressed mouse button. Nothing here.
    virtual void dealIndexPressedStyleState(QStyleOptionViewItem *option,
                                            const QModelIndex &index) const;

    /// \a info becomes the only tip of \a index; an invalid index does nothing.
    void addTipDeleteInfo(const QModelIndex &index, const TipDelegateInfo &info) const;
    /// \a infos become the tips of \a index, of which the first that holds the cursor shows; an
    /// invalid index does nothing.
    void addTipDeleteInfos(const QModelIndex &index, const QList<TipDelegateInfo> &infos) const;

    /// No cell counts as pressed any more.
    void cleanMousePressedIndex();

    /// Whether the cursor is in \a rect, which counts in the viewport of the option's view; false
    /// for an option without an item view.
    bool cursorInRect(const QStyleOptionViewItem &option, const QRect &rect) const;
    /// The same; false for null.
    bool cursorInRect(QStyleOptionViewItem *option, const QRect &rect) const;

    /// \a editor makes the editors from now on; it becomes a child of the delegate, and the one
    /// before is deleted later. Null, and the present one, change nothing.
    void setCustomDelegateEditor(BasicDelegateEditor *editor);
    BasicDelegateEditor *getCustomDelegateEditor() const;

    /// True: tips are those noted while painting. False, as at first: those of Qt::ToolTipRole.
    void setEnableMultiDelegate(bool enable);
    bool getEnableMultiDelegate() const;
    /// Height of a row in pixels, 30 at first; anything below 1 is ignored.
    void setSizeHintHeight(int height);
    int getSizeHintHeight() const;
    /// Kept for tables; off at first.
    void setEnableOnerRowColsHover(bool enable);
    bool getEnableOnerRowColsHover() const;
    /// The row that is painted as hovered in all its columns, -1 at first: none. Set by views.
    void setCurRowHover(int row);
    int getCurRowHover() const;
    /// The row that was last painted as hovered, -1 at first.
    void setHoverDrawRow(int row) const;
    int getHoverDrawRow() const;
    /// Pixels between the rows and columns of cells of many parts; 0 at first, negative counts as
    /// 0.
    void setItemRowSpacing(int spacing);
    int getItemRowSpacing() const;
    void setItemColSpacing(int spacing);
    int getItemColSpacing() const;
    /// Pixels between the pieces of paintItemMulText(), 6 at first; a negative value is ignored.
    void setItemMulTextSpacing(int spacing);
    int getItemMulTextSpacing() const;
    /// Kept for tables: the height of an editor in pixels, 24 at first.
    void setEditorHeight(int height);
    int getEditorHeight() const;
    /// Colours by the roles CusItemDataRole::RoleTextColor to RoleBgColorHover; off at first.
    void setEnableColorfulText(bool enable);
    bool getEnableColorfulText() const;

Q_SIGNALS:
    /// An editor got its data (true) or was destroyed (false).
    void signalEditorActive(bool active);

protected:
    bool editorEvent(QEvent *event, QAbstractItemModel *model, const QStyleOptionViewItem &option,
                     const QModelIndex &index) override;
    void initStyleOption(QStyleOptionViewItem *option, const QModelIndex &index) const override;

    /// Clears the bits of \a state and \a features; without HasDisplay the text goes, too. Null
    /// does nothing.
    void delStyleOptionStateAndFeature(QStyleOptionViewItem *option, QStyle::State state,
                                       QStyleOptionViewItem::ViewItemFeatures features) const;

    /// Draws the checked twin in State_On, the unchecked one in State_Off or State_NoChange, else
    /// nothing. A null pointer draws nothing.
    void drawSvgCheckBox(QPainter *painter, QStyleOptionButton *option, QStyle *style) const;
    /// The same with the twins of a radio button.
    void drawSvgRadioBtn(QPainter *painter, QStyleOptionButton *option, QStyle *style) const;

    /// The bounds of \a text, widened by the text margin on both sides, in pixels. The margin is
    /// one pixel more than the style's focus frame; \a widget may be null.
    QRect textBoundingRect(const QString &text, const QFont &font, const QWidget *widget) const;
    /// \a text, or its start with an ellipsis where text and margins are wider than the option's
    /// rectangle. The shortened text fills the rectangle without margins.
    QString textElidedText(const QString &text, const QStyleOptionViewItem &option) const;

    /// Draws one line, the option's text or else the cell's, in the option's rectangle. True when
    /// it was shown whole. Without enableColorfulText the text has the painter's pen. A null
    /// painter only measures.
    bool paintItemText(QPainter *painter, const QStyleOptionViewItem &option,
                       const QModelIndex &index) const;
    /// Draws the cell's QList<RichString> side by side, each piece in its own colour and size. True
    /// when a piece had to be shortened (paintItemText() answers the other way round); those behind
    /// it are left out. A null painter only measures.
    bool paintItemMulText(QPainter *painter, const QStyleOptionViewItem &option,
                          const QModelIndex &index) const;

private:
    /// Draws the line that \a option measures in the rectangle and alignment of \a look; a null
    /// \a pen leaves the painter's.
    bool drawLine(QPainter *painter, const QStyleOptionViewItem &option,
                  const QStyleOptionViewItem &look, const QPen *pen,
                  const QModelIndex &index) const;

    struct Private;
    const std::unique_ptr<Private> d;
};
