#pragma once

#include "vellum_export.h"

#include <QList>
#include <QMenu>

#include <memory>

class QStyleOptionMenuItem;

/// The popup menu of the library. It behaves as a QMenu but draws its rows itself: a check mark or
/// the icon of a CusSvgAction, the text, the shortcut, and an arrow for a submenu, each in a column
/// of its own that is kept free where a row has nothing to show in it. The style draws only a row's
/// ground, its QIcon and its separator line; since the rows are first filled with the palette's
/// Button brush, a sheet should give the menu an opaque ground.
///
/// A text that doesn't fit is elided and becomes the action's tool tip; a text that fits shows no
/// tip. A row whose action has no shortcut may hold one in its text, behind a tab. A
/// QWidgetAction's widget stands in its row alone.
///
/// The menu grows from 180 pixels with each row that is added through this class, to its maximum
/// width, 400 at first, and doesn't narrow again. It is frameless and translucent, so that a sheet
/// can round its corners. The marks are hidden buttons of the application's style sheet:
/// each a CusSvgPushButton, named "btn_menuCheckBoxChecked", "btn_menuArrowRight" and, in
/// right-to-left layout, "btn_menuArrowDown".
class VELLUM_EXPORT CusMenu : public QMenu
{
    Q_OBJECT

public:
    explicit CusMenu(const QString &title, QWidget *parent = nullptr);
    explicit CusMenu(QWidget *parent = nullptr);
    ~CusMenu() override;

    /// \name Additions
    /// They hide those of QMenu and QWidget, to widen the menu; call them on this type. A null
    /// action or menu is skipped, without a receiver or member nothing is connected.
    ///@{
    QAction *addAction(const QIcon &icon, const QString &text);
    QAction *addAction(const QIcon &icon, const QString &text, const QObject *receiver,
                       const char *member, const QKeySequence &shortcut = QKeySequence());
    QAction *addAction(const QString &text);
    void addAction(QAction *action);
    void addActions(const QList<QAction *> &actions);
    QAction *addMenu(QMenu *menu);
    QMenu *addMenu(const QIcon &icon, const QString &title);
    QMenu *addMenu(const QString &title);
    ///@}

    /// The pixels before a row's first and behind its last column, 8 and 10 at first. Any number is
    /// taken, for the next addition and the next paint.
    void setLeftActionMargin(int margin);
    int getLeftActionMargin() const;
    void setRightActionMargin(int margin);
    int getRightActionMargin() const;

    /// The width in pixels that the row of \a action asks for; 0 for null.
    int getActionWidth(const QAction *action) const;
    /// The widest row of the present actions, 0 without any.
    int getMenuMaxWidth() const;

    QSize sizeHint() const override;

protected:
    bool event(QEvent *event) override;
    void paintEvent(QPaintEvent *event) override;
    void mouseMoveEvent(QMouseEvent *event) override;
    void timerEvent(QTimerEvent *event) override;

    /// Draws one row where it meets the rectangle of \a event; nothing if one of the three is null.
    void paintAction(QPainter *painter, QAction *action, QPaintEvent *event);

private:
    struct RowLayout;
    void widenFor(const QAction *action);
    QMargins frameMargins() const;
    QRect rowRect(QAction *action) const;
    QRect rowsArea() const;
    bool holdsWidget(const QRect &row) const;
    RowLayout layoutRow(const QStyleOptionMenuItem &option, QAction *action) const;
    void drawEdge(QPainter *painter, const QRect &strip);
    void drawGround(QPainter *painter, const QStyleOptionMenuItem &option, const QAction *action);
    void drawMarks(QPainter *painter, const QStyleOptionMenuItem &option, const RowLayout &row,
                   const QAction *action);
    void drawTexts(QPainter *painter, const QStyleOptionMenuItem &option, const RowLayout &row,
                   QAction *action);
    void takeTip(QAction *action, const QString &text);
    bool showTipOf(const QAction *action);

    struct Private;
    const std::unique_ptr<Private> d;
};
