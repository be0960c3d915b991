#pragma once

#include "vellum_export.h"

#include <QRadioButton>

#include <memory>

/// A radio button whose indicator is an SVG button of the application's style sheet:
/// a CusSvgPushButton named "btn_radioChecked" while it is checked, with the dynamic property
/// "radiobtnchecked", and "btn_radioUnChecked" otherwise, with "radiobtnunchecked".
///
/// A label that is wider than the button less an ellipsis is elided and becomes the button's tool
/// tip; the tip stays when the label changes. Keyboard, focus and accessibility are QRadioButton's.
class VELLUM_EXPORT CusRadioButton : public QRadioButton
{
    Q_OBJECT

public:
    explicit CusRadioButton(const QString &text, QWidget *parent = nullptr);
    explicit CusRadioButton(QWidget *parent = nullptr);
    ~CusRadioButton() override;

    /// Renames the two hidden indicators, so that the sheet gives them other pictures.
    void setRadioButtonBtnObjectName(const QString &checked, const QString &unchecked);

    /// Sets a property of both hidden indicators and then of the button; the sheet is matched
    /// again, so that a dynamic property reaches the pictures. "visible" reaches the button alone.
    /// Hides QObject::setProperty(), which a base pointer still calls.
    bool setProperty(const char *name, const QVariant &value);

    /// As setChecked(), without a signal of this button. A button of its group that loses the check
    /// still tells so.
    void setCheckedNoSignal(bool checked);

Q_SIGNALS:
    /// The button became checked.
    void checked();

protected:
    void paintEvent(QPaintEvent *event) override;

private:
    struct Private;
    const std::unique_ptr<Private> d;
};
