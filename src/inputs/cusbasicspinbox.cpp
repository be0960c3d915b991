#include "inputs/cusbasicspinbox.h"

#include "common/restyle.h"
#include "inputs/spinboxparts.h"
#include "labels/angletipwidget.h"

#include <QApplication>
#include <QCursor>
#include <QKeyEvent>
#include <QLineEdit>
#include <QPointer>
#include <QSignalBlocker>
#include <QStyleOptionSpinBox>
#include <QStylePainter>

namespace {

constexpr double kDegreesPerDelta = 0.125;
constexpr int kDegreesPerStep = 15;

} // namespace

struct CusBasicSpinBox::Private
{
    /// The next entry starts from \a value: it comes back if the entry turns out of range.
    void startEntry(int value) { entryStart = lastValue = value; }

    bool invaildValToRange = true;
    vellum::SpinBoxArrows arrows;
    int entryStart = 0;
    /// As of the last change that is known; another value means that code has set it since.
    int lastValue = 0;
    bool keepText = false;
    QString keptText;
};

CusBasicSpinBox::CusBasicSpinBox(QWidget *parent)
    : QSpinBox(parent)
    , d(std::make_unique<Private>())
{
    setFocusPolicy(Qt::ClickFocus);
    setContextMenuPolicy(Qt::NoContextMenu);
    d->startEntry(value());
    // The first to hear of it: whatever a client does in its own slot comes later.
    connect(this, QOverload<int>::of(&QSpinBox::valueChanged), this,
            [this] { d->lastValue = value(); });
    watchLineEdit();
}

CusBasicSpinBox::~CusBasicSpinBox() = default;

void CusBasicSpinBox::setInvaildValToRange(bool enable)
{
    d->invaildValToRange = enable;
}

void CusBasicSpinBox::setIsValidStyle(bool valid)
{
    setProperty("Invalid", !valid);
    vellum::restyle(this);
}

void CusBasicSpinBox::setPlaceHolderText(const QString &text)
{
    lineEdit()->setPlaceholderText(text);
}

void CusBasicSpinBox::setProperty(const char *name, const QVariant &value)
{
    if (!name)
        return;
    // The arrows keep their names and stay hidden.
    if (qstrcmp(name, "objectName") != 0 && qstrcmp(name, "visible") != 0)
        d->arrows.setProperty(name, value);
    QSpinBox::setProperty(name, value);
}

bool CusBasicSpinBox::eventFilter(QObject *watched, QEvent *event)
{
    // A filter of the application is handed the events of all objects, not only its own.
    const bool isApplicationFilter = watched == qApp || (watched != this && hasFocus());
    if (event->type() == QEvent::MouseButtonPress && isApplicationFilter
        && !rect().contains(mapFromGlobal(QCursor::pos())))
        focusNextChild();
    return QSpinBox::eventFilter(watched, event);
}

void CusBasicSpinBox::setLineEdit(QLineEdit *edit)
{
    if (!edit || edit == lineEdit())
        return;
    QSpinBox::setLineEdit(edit);
    watchLineEdit();
}

void CusBasicSpinBox::watchLineEdit()
{
    // After QSpinBox's own connection, so that the value has followed the text by then.
    connect(lineEdit(), &QLineEdit::textChanged, this, &CusBasicSpinBox::onEditorTextChanged);
}

void CusBasicSpinBox::onEditorTextChanged(const QString &text)
{
    d->lastValue = value();
    bool isNumber = false;
    const int number = readNumber(text, &isNumber);
    if (!d->invaildValToRange || value() == d->entryStart || !isNumber || isInRange(number))
        return;
    // "200" in a box up to 100 has been 2 and 20 on the way.
    QLineEdit *edit = lineEdit();
    const int cursor = edit->cursorPosition();
    {
        const QSignalBlocker blocker(this);
        d->keptText = typedText();
        d->keepText = true;
        setValue(d->entryStart);
        d->keepText = false;
        if (edit->text() != text) {
            const QSignalBlocker editBlocker(edit);
            edit->setText(text);
            edit->setCursorPosition(cursor);
        }
    }
    d->lastValue = value();
    Q_EMIT valueChanged(value());
}

bool CusBasicSpinBox::keepsTypedText() const
{
    return d->keepText;
}

QString CusBasicSpinBox::typedText() const
{
    return vellum::stripAffixes(lineEdit()->text(), prefix(), suffix());
}

QValidator::State CusBasicSpinBox::validate(QString &input, int &pos) const
{
    // Each new text comes by here before the value follows it.
    if (value() != d->lastValue)
        d->startEntry(value());
    const QValidator::State state = QSpinBox::validate(input, pos);
    if (state != QValidator::Invalid || !d->invaildValToRange)
        return state;
    bool isNumber = false;
    const int number = readNumber(input, &isNumber);
    return isNumber && !isInRange(number) ? QValidator::Intermediate : QValidator::Invalid;
}

QString CusBasicSpinBox::textFromValue(int value) const
{
    return d->keepText ? d->keptText : QSpinBox::textFromValue(value);
}

int CusBasicSpinBox::readNumber(const QString &text, bool *ok) const
{
    bool isNumber = false;
    const QString stripped = vellum::stripAffixes(text, prefix(), suffix());
    int number = stripped.toInt(&isNumber);
    // What QSpinBox itself may show is a number, too, or Return on it would change the value.
    if (!isNumber)
        number = locale().toInt(stripped, &isNumber);
    if (!isNumber && !specialValueText().isEmpty() && text == specialValueText()) {
        number = minimum();
        isNumber = true;
    }
    if (ok)
        *ok = isNumber;
    return number;
}

bool CusBasicSpinBox::isInRange(int number) const
{
    return number >= minimum() && number <= maximum();
}

void CusBasicSpinBox::focusOutEvent(QFocusEvent *event)
{
    const QPointer<CusBasicSpinBox> alive(this);
    if (!d->invaildValToRange) {
        QSpinBox::focusOutEvent(event);
        if (alive)
            d->startEntry(value());
        return;
    }
    const int old = value();
    const int number = readNumber(lineEdit()->text());
    const bool accepted = isInRange(number) && !typedText().isEmpty();
    {
        const QSignalBlocker blocker(this);
        QSpinBox::focusOutEvent(event);
    }
    d->startEntry(value());
    if (accepted) {
        Q_EMIT editingFinished();
        return;
    }
    if (old != number)
        Q_EMIT valueChanged(old);
    if (alive)
        Q_EMIT editingFinished();
    if (alive && old != number)
        setValue(old);
    if (alive)
        showRangeTip(QStringLiteral("."));
}

void CusBasicSpinBox::keyPressEvent(QKeyEvent *event)
{
    const bool isReturn = event->key() == Qt::Key_Return || event->key() == Qt::Key_Enter;
    if (isReturn && d->invaildValToRange) {
        commitByReturn(event);
        return;
    }
    const QPointer<CusBasicSpinBox> alive(this);
    QSpinBox::keyPressEvent(event);
    if (alive && isReturn)
        d->startEntry(value());
}

void CusBasicSpinBox::commitByReturn(QKeyEvent *event)
{
    const int old = value();
    const int number = readNumber(lineEdit()->text());
    const bool inRange = isInRange(number);
    const int result = inRange ? number : old;
    {
        // Both: QSpinBox lets its line edit tell of the key as well.
        const QSignalBlocker blocker(this);
        const QSignalBlocker editBlocker(lineEdit());
        QSpinBox::keyPressEvent(event);
        // QSpinBox keeps the value of an empty text, which counts as 0 here.
        if (value() != result)
            setValue(result);
    }
    d->startEntry(result);
    const QPointer<CusBasicSpinBox> alive(this);
    Q_EMIT valueChanged(result);
    if (alive)
        Q_EMIT editingFinished();
    if (alive)
        Q_EMIT lineEdit()->returnPressed();
    if (alive && result != number)
        setValue(result);
    if (alive && !inRange)
        showRangeTip(tr("."));
}

void CusBasicSpinBox::showRangeTip(const QString &fullStop)
{
    // A window that is closed or deleted takes the focus away, too, and takes no new child then.
    const QWidget *page = window();
    if (page->isHidden() && page->testAttribute(Qt::WA_WState_ExplicitShowHide))
        return;
    const QString range = QStringLiteral("%1~%2")
                              .arg(minimum(), 0, 10, QLatin1Char(' '))
                              .arg(maximum(), 0, 10, QLatin1Char(' '));
    AngleTiPWidget::showAngleTipText(this, tr("Please input") + QLatin1Char(' ') + range + fullStop,
                                     ArrowWidget::Arrow_Left);
}

void CusBasicSpinBox::wheelEvent(QWheelEvent *event)
{
    const QPoint degrees = event->angleDelta() * kDegreesPerDelta;
    // Ignored, a turn over a form scrolls the form and changes no number by accident.
    if (!hasFocus() || isReadOnly() || degrees.isNull()) {
        event->ignore();
        return;
    }
    const QPointer<CusBasicSpinBox> alive(this);
    addOrSubSingleStep(degrees.y() / kDegreesPerStep);
    if (!alive)
        return;
    selectAll();
    event->accept();
}

// A turn that is no whole notch, or goes sideways, is meant to step down.
void CusBasicSpinBox::addOrSubSingleStep(int steps)
{
    const qint64 step = steps >= 1 ? singleStep() : -qint64(singleStep());
    const int target = int(qBound<qint64>(minimum(), value() + step, maximum()));
    const QPointer<CusBasicSpinBox> alive(this);
    lineEdit()->setText(QString::number(target));
    if (!alive)
        return;
    setValue(target);
    if (alive)
        d->startEntry(value());
}

void CusBasicSpinBox::initStyleOption(QStyleOptionSpinBox *option) const
{
    QSpinBox::initStyleOption(option);
}

void CusBasicSpinBox::paintEvent(QPaintEvent *event)
{
    Q_UNUSED(event)
    QStyleOptionSpinBox option;
    initStyleOption(&option);
    QStylePainter painter(this);
    paintSpinbox(&painter, &option);
}

void CusBasicSpinBox::paintSpinbox(QStylePainter *painter, QStyleOptionSpinBox *option)
{
    if (painter && option)
        d->arrows.paint(painter, option, this);
}
