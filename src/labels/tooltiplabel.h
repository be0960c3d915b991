#pragma once

#include "vellum_export.h"

#include <QLabel>

#include <memory>

/// The library's own tool tip: a rounded bubble with plain or rich text, in the colours of the
/// theme keys "ToolTipLabel_TipBordderColor", "ToolTipLabel_TipBGroundColor" and
/// "ToolTipLabel_TipTextColor". A theme without these keys gives black.
///
/// While visible the tip watches the whole application: a press, release, double click, wheel turn,
/// change of focus or activation, a leave or a close anywhere hides it, and so do 10 seconds. For
/// style sheets it is named "label_toolTip". GUI thread only.
///
/// Most callers need showLabelText() alone. A view that makes a tip of its own must not hide a
/// fresh one: hiding any ToolTipLabel takes the global tip along.
class VELLUM_EXPORT ToolTipLabel : public QLabel
{
    Q_OBJECT

public:
    explicit ToolTipLabel(QWidget *parent = nullptr);
    ~ToolTipLabel() override;

    /// Shows \a text in the global tip near the global position \a pos, on behalf of \a widget.
    /// With the same widget and text already on the screen nothing happens, so that a tip doesn't
    /// flicker while the cursor moves over one cell. A null \a widget does nothing. The global tip
    /// belongs to the library and is deleted once it is hidden.
    static void showLabelText(const QPoint &pos, const QString &text, QWidget *widget);

    /// Moves the tip below and to the right of the global position \a pos, and to the other side
    /// of it where the screen ends; the tip stays on the screen that holds \a pos. One that is
    /// wider keeps its left edge there, one that is higher its lower edge.
    void placeTip(const QPoint &pos);
    /// Takes \a text, plain with line feeds or rich, and the size that it needs.
    void updateSize(const QString &text);

    /// A table tip also hides when the cursor leaves the rectangle given to rectChanged(). Off by
    /// default.
    void setTableTip(bool tableTip);
    /// The widget that the tip speaks for; not owned, and null again after its deletion.
    void setToolTipWidget(QWidget *widget);
    QWidget *getToolTipWidget() const;

    /// Stores the global rectangle that the tip belongs to; true if it differed from the last one.
    bool rectChanged(const QRect &rect);
    /// Whether \a text differs from the text shown.
    bool textChanged(const QString &text) const;

    /// Never stops an event.
    bool eventFilter(QObject *watched, QEvent *event) override;
    void setVisible(bool visible) override;

protected:
    void paintEvent(QPaintEvent *event) override;

private:
    struct Private;
    const std::unique_ptr<Private> d;
};
