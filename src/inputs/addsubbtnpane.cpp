#include "inputs/addsubbtnpane.h"

#include "ui_addsubbtnpane.h"

#include <QPointer>

#include <limits>

struct AddSubBtnPane::Private
{
    Ui::AddSubBtnPane ui;
    int value = 0;
    int minValue = 0;
    int maxValue = 100;
    int addStep = 1;
    std::function<QString(const int &)> numToText;
    unsigned showings = 0;
};

AddSubBtnPane::AddSubBtnPane(QWidget *parent)
    : QFrame(parent)
    , d(std::make_unique<Private>())
{
    d->ui.setupUi(this);
    connectInit();
    showValue();
}

AddSubBtnPane::~AddSubBtnPane() = default;

void AddSubBtnPane::connectInit()
{
    connect(d->ui.pushButton_AddSubSub, &QPushButton::clicked, this,
            [this] { stepBy(-qint64(d->addStep)); });
    connect(d->ui.pushButton_AddSubAdd, &QPushButton::clicked, this,
            [this] { stepBy(d->addStep); });
    connect(d->ui.pushButton_addSubVal, &QPushButton::clicked, this,
            &AddSubBtnPane::signalValBtnClicked);
}

int AddSubBtnPane::curValue() const
{
    return d->value;
}

void AddSubBtnPane::setCurValue(int value)
{
    d->value = value;
    showValue();
}

int AddSubBtnPane::maxValue() const
{
    return d->maxValue;
}

void AddSubBtnPane::setMaxValue(int value)
{
    if (value > d->minValue)
        d->maxValue = value;
}

int AddSubBtnPane::minValue() const
{
    return d->minValue;
}

void AddSubBtnPane::setMinValue(int value)
{
    if (value < d->maxValue)
        d->minValue = value;
}

int AddSubBtnPane::addStep() const
{
    return d->addStep;
}

void AddSubBtnPane::setAddStep(int step)
{
    d->addStep = step;
}

void AddSubBtnPane::registerNumToTextCb(const std::function<QString(const int &)> &numToText)
{
    d->numToText = numToText;
    showValue();
}

void AddSubBtnPane::setBtnObjName(const QString &sub, const QString &value, const QString &add)
{
    Q_UNUSED(sub)
    Q_UNUSED(value)
    Q_UNUSED(add)
}

void AddSubBtnPane::setToolTip(const QString &sub, const QString &value, const QString &add)
{
    Q_UNUSED(sub)
    Q_UNUSED(value)
    Q_UNUSED(add)
}

void AddSubBtnPane::onBtnAddClicked(bool clicked)
{
    Q_UNUSED(clicked)
    takeValue(qMin<qint64>(qint64(d->value) + d->addStep, d->maxValue));
}

void AddSubBtnPane::onBtnSubClicked(bool clicked)
{
    Q_UNUSED(clicked)
    takeValue(qMax<qint64>(qint64(d->value) - d->addStep, d->minValue));
}

void AddSubBtnPane::stepBy(qint64 step)
{
    const qint64 target = qBound<qint64>(d->minValue, d->value + step, d->maxValue);
    if (target != d->value)
        takeValue(target);
}

void AddSubBtnPane::takeValue(qint64 value)
{
    const int taken = int(
        qBound<qint64>(std::numeric_limits<int>::min(), value, std::numeric_limits<int>::max()));
    const QPointer<AddSubBtnPane> alive(this);
    setCurValue(taken);
    if (alive)
        Q_EMIT signalValueChanged(taken);
}

void AddSubBtnPane::showValue()
{
    const unsigned showing = ++d->showings;
    if (!d->numToText) {
        d->ui.pushButton_addSubVal->setText(QString::number(d->value));
        return;
    }
    // A copy: the callback may register another one, set another value, or delete the pane.
    const auto numToText = d->numToText;
    const QPointer<AddSubBtnPane> alive(this);
    const QString text = numToText(d->value);
    if (alive && showing == d->showings)
        d->ui.pushButton_addSubVal->setText(text);
}
