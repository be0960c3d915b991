#include "edits/actionlineedit.h"

#include "common/restyle.h"
#include "edits/cuslineedit.h"
#include "ui_actionlineedit.h"

#include <QChildEvent>
#include <QClipboard>
#include <QGuiApplication>
#include <QKeyEvent>
#include <QPointer>
#include <QRegExp>
#include <QSet>

namespace {

constexpr int kActionMargin = 5;
constexpr char kFocusProperty[] = "hasfocus";
constexpr char kReadOnlyProperty[] = "readonly";

QString passwordFrom(QString text)
{
    // Chinese characters and blanks: nobody means them in a password that was copied.
    return text.remove(QRegExp(QStringLiteral("[\\x4e00-\\x9fa5 ]+")));
}

bool isPaste(const QKeyEvent *event)
{
    return event->modifiers() == Qt::ControlModifier && event->key() == Qt::Key_V;
}

} // namespace

struct ActionLineEdit::Private
{
    QHBoxLayout *layout = nullptr;
    CusLineEdit *lineEdit = nullptr;
    QSet<QObject *> leading;
    QSet<QObject *> trailing;
    bool filterPaste = true;
    bool ownMargins = false;

    bool forget(QObject *widget) { return leading.remove(widget) + trailing.remove(widget) > 0; }
    void applyMargins(QFrame *frame);
};

void ActionLineEdit::Private::applyMargins(QFrame *frame)
{
    ownMargins = true;
    frame->setContentsMargins(leading.isEmpty() ? 0 : kActionMargin, 0,
                              trailing.isEmpty() ? 0 : kActionMargin, 0);
}

ActionLineEdit::ActionLineEdit(QWidget *parent)
    : QFrame(parent)
    , d(std::make_unique<Private>())
{
    setObjectName(QStringLiteral("CustomLineedit"));
    setProperty("isCustomLineedit", true);
    setProperty("editNoBorder", true);
    Ui::ActionLineEdit ui;
    ui.setupUi(this);
    d->layout = ui.horizontalLayout_content;
    d->lineEdit = ui.lineEdit_addr;
    setFocusProxy(d->lineEdit);
    d->lineEdit->installEventFilter(this);
}

ActionLineEdit::~ActionLineEdit() = default;

CusLineEdit *ActionLineEdit::lineedit()
{
    return d->lineEdit;
}

QString ActionLineEdit::text() const
{
    return d->lineEdit->text();
}

void ActionLineEdit::setText(const QString &text)
{
    d->lineEdit->setText(text);
}

void ActionLineEdit::setLineEditMaxLength(int length)
{
    d->lineEdit->setMaxLength(length);
}

void ActionLineEdit::setDisabled(bool disable)
{
    d->lineEdit->setDisabled(disable);
    QFrame::setDisabled(disable);
}

void ActionLineEdit::setReadOnly(bool readOnly)
{
    setProperty(kReadOnlyProperty, readOnly);
    vellum::restyle(this);
    d->lineEdit->setReadOnly(readOnly);
}

void ActionLineEdit::addAction(QWidget *widget, ActionLineeditActionPosition position)
{
    if (!widget || widget == d->lineEdit || widget == this || widget->isAncestorOf(this)
        || d->leading.contains(widget) || d->trailing.contains(widget))
        return;
    if (position == LeadingPosition) {
        d->layout->insertWidget(d->leading.size(), widget);
        d->leading.insert(widget);
    } else if (position == TrailingPosition) {
        d->layout->addWidget(widget);
        d->trailing.insert(widget);
    }
    d->applyMargins(this);
}

void ActionLineEdit::deleteAction(QWidget *widget)
{
    // The edit stands in the layout, too, and stays there; what a client put there itself does not.
    if (widget && widget != d->lineEdit) {
        d->forget(widget);
        d->layout->removeWidget(widget);
    }
    d->applyMargins(this);
}

bool ActionLineEdit::filterPaste() const
{
    return d->filterPaste;
}

void ActionLineEdit::setFilterPaste(bool filter)
{
    d->filterPaste = filter;
}

bool ActionLineEdit::eventFilter(QObject *watched, QEvent *event)
{
    if (watched == d->lineEdit) {
        const bool focusIn = event->type() == QEvent::FocusIn;
        if (focusIn || event->type() == QEvent::FocusOut) {
            setProperty(kFocusProperty, focusIn);
            vellum::restyle(this);
            const QPointer<QObject> edit(watched);
            if (focusIn)
                lineEditFocusIn();
            else
                lineEidtFocusOut();
            // A hook that deleted the frame leaves nobody for the event.
            if (!edit)
                return true;
        } else if (event->type() == QEvent::KeyPress && d->filterPaste
                   && d->lineEdit->echoMode() == QLineEdit::Password
                   && isPaste(static_cast<QKeyEvent *>(event))) {
            d->lineEdit->setText(passwordFrom(QGuiApplication::clipboard()->text()));
            return true;
        }
    }
    return QFrame::eventFilter(watched, event);
}

void ActionLineEdit::lineEditFocusIn() { }

void ActionLineEdit::lineEidtFocusOut() { }

bool ActionLineEdit::event(QEvent *event)
{
    const bool handled = QFrame::event(event);
    // Then QFrame sets the margins by the width of its border; the edit would jump at each change
    // of the focus.
    const QEvent::Type type = event->type();
    if (d->ownMargins
        && (type == QEvent::Polish || type == QEvent::StyleChange || type == QEvent::ParentChange))
        d->applyMargins(this);
    return handled;
}

/// A widget that was deleted or given away no longer counts.
void ActionLineEdit::childEvent(QChildEvent *event)
{
    QFrame::childEvent(event);
    if (event->removed() && d->forget(event->child()))
        d->applyMargins(this);
}
