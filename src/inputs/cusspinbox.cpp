#include "inputs/cusspinbox.h"

#include <QKeyEvent>
#include <QLineEdit>
#include <QSignalBlocker>

namespace {

constexpr int kSmallestBase = 2;
constexpr int kLargestBase = 36;
constexpr int kLargestWidth = 64;

bool endsAnEntry(const QEvent *event)
{
    if (event->type() == QEvent::FocusOut)
        return true;
    if (event->type() != QEvent::KeyPress)
        return false;
    const int key = static_cast<const QKeyEvent *>(event)->key();
    return key == Qt::Key_Return || key == Qt::Key_Enter || key == Qt::Key_Up
        || key == Qt::Key_Down;
}

} // namespace

struct CusSpinBox::Private
{
    int lastInputVal = 0;
    int fieldWidth = 2;
    int base = 10;
    QChar fillChar = QLatin1Char('0');
};

CusSpinBox::CusSpinBox(QWidget *parent)
    : CusBasicSpinBox(parent)
    , d(std::make_unique<Private>())
{
    uiInit();
}

CusSpinBox::~CusSpinBox() = default;

void CusSpinBox::uiInit()
{
    // The editor is nameless: Qt's name for it is no part of the interface. Another editor in its
    // place would cost a fifth of the box's making.
    lineEdit()->setObjectName(QString());
    installEventFilter(this);
    connect(this, &QSpinBox::editingFinished, this, &CusSpinBox::clampLastInput);
    showAgain();
}

int CusSpinBox::base()
{
    return d->base;
}

void CusSpinBox::setBase(int base)
{
    if (base < kSmallestBase || base > kLargestBase)
        return;
    d->base = base;
    showAgain();
}

int CusSpinBox::fieldWidth() const
{
    return d->fieldWidth;
}

void CusSpinBox::setFieldWidth(int width)
{
    d->fieldWidth = qBound(-kLargestWidth, width, kLargestWidth);
    showAgain();
}

QChar CusSpinBox::fillChar()
{
    return d->fillChar;
}

void CusSpinBox::setFillChar(QChar fill)
{
    d->fillChar = fill;
    showAgain();
}

void CusSpinBox::showAgain()
{
    setValue(value());
}

bool CusSpinBox::eventFilter(QObject *watched, QEvent *event)
{
    if (watched == this && endsAnEntry(event) && !lineEdit()->text().isEmpty())
        d->lastInputVal = readNumber(lineEdit()->text());
    return CusBasicSpinBox::eventFilter(watched, event);
}

void CusSpinBox::clampLastInput()
{
    const int limited = qBound(minimum(), d->lastInputVal, maximum());
    if (limited == d->lastInputVal)
        return;
    // An entry is limited once, not again when the next one is empty.
    d->lastInputVal = limited;
    // Silent, and before CusBasicSpinBox puts the value of before back: that one is told.
    const QSignalBlocker blocker(this);
    setValue(limited);
}

QValidator::State CusSpinBox::validate(QString &input, int &pos) const
{
    const QString padded = input;
    const int paddedPos = pos;
    const QValidator::State state = CusBasicSpinBox::validate(input, pos);
    // QSpinBox trims what it checks, and with it the padding.
    if (d->fillChar.isSpace()) {
        input = padded;
        pos = paddedPos;
    }
    return state;
}

QString CusSpinBox::textFromValue(int value) const
{
    if (keepsTypedText())
        return CusBasicSpinBox::textFromValue(value);
    return QStringLiteral("%1").arg(value, d->fieldWidth, d->base, d->fillChar);
}

int CusSpinBox::valueFromText(const QString &text) const
{
    return readNumber(text);
}
