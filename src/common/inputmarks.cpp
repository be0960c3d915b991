#include "common/cusuicommonfun.h"
#include "common/restyle.h"
#include "common/textlengthlimit.h"

#include <QComboBox>
#include <QLineEdit>
#include <QPointer>
#include <QTextEdit>

namespace {

constexpr char kInvalidProperty[] = "Invalid";

template <typename Widget, typename Signal>
void clearMarkOn(Widget *widget, Signal changed, const std::function<void()> &callback)
{
    if (!widget)
        return;
    QObject::connect(widget, changed, widget, [widget, callback] {
        const QPointer<Widget> guard = widget;
        widget->setProperty(kInvalidProperty, false);
        vellum::restyle(guard);
        if (callback)
            callback();
    });
}

} // namespace

void realCheckInvalid(QComboBox *comboBox)
{
    clearMarkOn(comboBox, &QComboBox::editTextChanged, {});
}

void realCheckInvalid(QLineEdit *lineEdit)
{
    clearMarkOn(lineEdit, &QLineEdit::textChanged, {});
}

void realCheckInvalid(QTextEdit *textEdit)
{
    clearMarkOn(textEdit, &QTextEdit::textChanged, {});
}

void realCheckInvalidWithCall(QComboBox *comboBox, const std::function<void()> &callback)
{
    clearMarkOn(comboBox, &QComboBox::editTextChanged, callback);
}

void realCheckInvalidWithCall(QLineEdit *lineEdit, const std::function<void()> &callback)
{
    clearMarkOn(lineEdit, &QLineEdit::textChanged, callback);
}

void realCheckInvalidWithCall(QTextEdit *textEdit, const std::function<void()> &callback)
{
    clearMarkOn(textEdit, &QTextEdit::textChanged, callback);
}

void bindTextEditMaxLength(QTextEdit *edit, int maxLength)
{
    if (edit)
        vellum::TextLengthLimit::set(edit, maxLength);
}
