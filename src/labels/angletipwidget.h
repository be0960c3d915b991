#pragma once

#include "labels/arrowwidget.h"

#include <QWidget>

#include <memory>

/// The validation bubble: a text that hangs beside an input and goes away by itself.
///
/// It stays for three seconds, and three more whenever the cursor rests on it by then; it goes at
/// once when its target is resized, hidden, moved or deleted, or its window loses activation. A
/// bubble deletes itself, so keep no pointers to it. The arrow, in the theme colour
/// "AngleTiPWidget_AngleColor", is always at the lower right; the label is named "label_angleTip"
/// for style sheets. GUI thread only.
class VELLUM_EXPORT AngleTiPWidget : public QWidget
{
    Q_OBJECT

public:
    /// A child of \a target, shown as a window of its own. A null target is followed by nothing
    /// and leaves the bubble to the caller. The arrow type has no effect.
    explicit AngleTiPWidget(ArrowWidget::ArrowType type, QWidget *target = nullptr);
    ~AngleTiPWidget() override;

    /// Shows a new bubble with \a text for \a target, its lower right corner at the global position
    /// \a rightBottom. Earlier bubbles of the target stay. A null target does nothing.
    static void showAngleTipText(QWidget *target, const QPoint &rightBottom, const QString &text,
                                 ArrowWidget::ArrowType type);
    /// The same at the upper right corner of \a target.
    static void showAngleTipText(QWidget *target, const QString &text, ArrowWidget::ArrowType type);
    /// Takes away one bubble among the descendants of \a target, its own before those of its
    /// children, the oldest first.
    static void hideAngleTip(QWidget *target);
    static void hideAllAngleTip();

    /// At most 500 pixels wide; a longer text is wrapped.
    void setShowText(const QString &text);
    /// Where the lower right corner goes at the first paint, global. (0, 0), the default, leaves
    /// the bubble in its place and without an arrow.
    void setTipRightBottomPoint(const QPoint &rightBottom);

    /// Never stops an event.
    bool eventFilter(QObject *watched, QEvent *event) override;
    void setVisible(bool visible) override;

public Q_SLOTS:
    /// Forgets the target and goes away.
    void onErrwidgetDestory();

protected:
    void paintEvent(QPaintEvent *event) override;

private:
    void timeOut();
    void dismiss();
    void placeAtRightBottom();

    struct Private;
    const std::unique_ptr<Private> d;
};
