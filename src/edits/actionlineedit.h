#pragma once

#include "vellum_export.h"

#include <QFrame>

#include <memory>

class CusLineEdit;

/// A frame around a CusLineEdit that shows the edit's states to the style sheet and takes further
/// widgets beside the edit.
///
/// The frame is named "CustomLineedit", the edit "lineEdit_addr". Dynamic properties of the frame,
/// all bool: "isCustomLineedit" and "editNoBorder" are always true, "hasfocus" follows the focus of
/// the edit, "readonly" follows setReadOnly(). The frame passes the keyboard focus on to the edit.
/// GUI thread only.
class VELLUM_EXPORT ActionLineEdit : public QFrame
{
    Q_OBJECT

public:
    /// Where addAction() places a widget.
    enum ActionLineeditActionPosition : int
    {
        LeadingPosition = 0,
        TrailingPosition = 1
    };
    Q_ENUM(ActionLineeditActionPosition)

    explicit ActionLineEdit(QWidget *parent = nullptr);
    ~ActionLineEdit() override;

    /// The edit; it belongs to the frame.
    CusLineEdit *lineedit();

    /// The edit's CusLineEdit::text().
    QString text() const;
    void setText(const QString &text);
    /// The edit's CusLineEdit::setMaxLength().
    void setLineEditMaxLength(int length);

    /// Disables the edit, then the frame. Hides QWidget::setDisabled().
    void setDisabled(bool disable);
    void setReadOnly(bool readOnly);

    /// Puts \a widget beside the edit and makes the frame its parent: after the leading widgets
    /// that are there, or at the end. Null, the frame itself or one around it, the edit, and a
    /// widget that was added before, are ignored, as is any other position. Hides
    /// QWidget::addAction().
    void addAction(QWidget *widget, ActionLineeditActionPosition position);
    /// Takes \a widget out of the layout. It remains a child of the frame, wherever it stands.
    void deleteAction(QWidget *widget);

    /// Whether Ctrl+V in an edit in QLineEdit::Password mode leaves out Chinese characters and
    /// blanks, and replaces all that is in the field, even in a read-only one; true at first.
    /// Pasting by a menu is not filtered.
    bool filterPaste() const;
    void setFilterPaste(bool filter);

    /// The edit got the focus. Does nothing here.
    virtual void lineEditFocusIn();
    /// The edit lost the focus. Does nothing here.
    virtual void lineEidtFocusOut();

    bool eventFilter(QObject *watched, QEvent *event) override;

protected:
    bool event(QEvent *event) override;
    void childEvent(QChildEvent *event) override;

private:
    struct Private;
    const std::unique_ptr<Private> d;
};
