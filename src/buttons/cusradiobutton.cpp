#include "buttons/cusradiobutton.h"

#include "buttons/cussvgpushbutton.h"
#include "buttons/indicatortwins.h"

#include <QPainter>
#include <QSignalBlocker>
#include <QStyleOptionButton>

struct CusRadioButton::Private
{
    vellum::IndicatorTwins twins{QStringLiteral("btn_radioChecked"),
                                 QStringLiteral("btn_radioUnChecked")};
};

CusRadioButton::CusRadioButton(const QString &text, QWidget *parent)
    : QRadioButton(text, parent)
    , d(std::make_unique<Private>())
{
    d->twins.checked->setProperty("radiobtnchecked", true);
    d->twins.unchecked->setProperty("radiobtnunchecked", true);
    setCursor(Qt::PointingHandCursor);
    connect(this, &QAbstractButton::toggled, this, [this](bool on) {
        if (on)
            Q_EMIT checked();
    });
}

CusRadioButton::CusRadioButton(QWidget *parent)
    : CusRadioButton(QString(), parent)
{
}

CusRadioButton::~CusRadioButton() = default;

void CusRadioButton::setRadioButtonBtnObjectName(const QString &checked, const QString &unchecked)
{
    d->twins.rename(checked, unchecked);
    update();
}

bool CusRadioButton::setProperty(const char *name, const QVariant &value)
{
    d->twins.setProperty(name, value);
    return vellum::setRestyledProperty(this, name, value);
}

void CusRadioButton::setCheckedNoSignal(bool checked)
{
    const QSignalBlocker blocker(this);
    setChecked(checked);
}

void CusRadioButton::paintEvent(QPaintEvent * /*event*/)
{
    QStyleOptionButton option;
    initStyleOption(&option);
    option.text = vellum::elidedLabel(this, option.text);

    QPainter painter(this);
    const QRect indicator = style()->subElementRect(QStyle::SE_RadioButtonIndicator, &option, this);
    const QRect contents = style()->subElementRect(QStyle::SE_RadioButtonContents, &option, this);
    option.state &= ~(QStyle::State_Off | QStyle::State_On);
    d->twins.draw(&painter, isChecked(), indicator, option.state, this);
    option.rect = contents;
    style()->drawControl(QStyle::CE_RadioButtonLabel, &option, &painter, this);
}
