#include "inputs/cuscustominputpane.h"

#include "common/defaulttext.h"
#include "common/restyle.h"
#include "ui_cuscustominputpane.h"

#include <QDynamicPropertyChangeEvent>
#include <QPointer>

namespace {

constexpr int kPartHeight = 30;
constexpr int kPartGap = 6;

} // namespace

struct CusCustomInputPane::Private
{
    Ui::CusCustomInputPane ui;
    bool autoChecked = true;
    bool radiosVisible = true;
    vellum::DefaultText autoText;
    vellum::DefaultText customizeText;
};

CusCustomInputPane::CusCustomInputPane(QWidget *parent)
    : QWidget(parent)
    , d(std::make_unique<Private>())
{
    d->ui.setupUi(this);
    resetWidgetUiLanguage();
    connectInit();
    applyState(true);
}

CusCustomInputPane::~CusCustomInputPane() = default;

void CusCustomInputPane::connectInit()
{
    connect(d->ui.radioButton_auto, &CusRadioButton::checked, this,
            &CusCustomInputPane::onRadioAutoClicked);
    connect(d->ui.radioButton_customize, &CusRadioButton::checked, this,
            &CusCustomInputPane::onRadioCustomClicked);
    connect(d->ui.cusSpinBoxWithUnits, QOverload<int>::of(&QSpinBox::valueChanged), this,
            [this](int value) { Q_EMIT signalCustomizeInputValChanged(d->autoChecked, value); });
}

bool CusCustomInputPane::getAutoChecked() const
{
    return d->autoChecked;
}

void CusCustomInputPane::setAutoChecked(bool checked)
{
    const bool changed = d->ui.radioButton_auto->isChecked() != checked;
    (checked ? d->ui.radioButton_auto : d->ui.radioButton_customize)->setCheckedNoSignal(true);
    applyState(checked);
    if (changed)
        Q_EMIT signalAutoCheckChanged();
}

int CusCustomInputPane::getCustomizeMinVal() const
{
    return d->ui.cusSpinBoxWithUnits->minimum();
}

void CusCustomInputPane::setCustomizeMinVal(int value)
{
    d->ui.cusSpinBoxWithUnits->setMinimum(value);
}

int CusCustomInputPane::getCustomizeMaxVal() const
{
    return d->ui.cusSpinBoxWithUnits->maximum();
}

void CusCustomInputPane::setCustomizeMaxVal(int value)
{
    d->ui.cusSpinBoxWithUnits->setMaximum(value);
}

int CusCustomInputPane::getCustomizeCurVal() const
{
    return d->ui.cusSpinBoxWithUnits->value();
}

void CusCustomInputPane::setCustomizeCurVal(int value)
{
    d->ui.cusSpinBoxWithUnits->setValue(value);
}

QString CusCustomInputPane::getCustomizeUnitTxt() const
{
    return d->ui.cusSpinBoxWithUnits->getUnitTxt();
}

void CusCustomInputPane::setCustomizeUnitTxt(const QString &unit)
{
    d->ui.cusSpinBoxWithUnits->setUnitTxt(unit);
}

QString CusCustomInputPane::getCustomizeHolderTxt() const
{
    return d->ui.cusSpinBoxWithUnits->getPlaceHolderText();
}

void CusCustomInputPane::setCustomizeHolderTxt(const QString &text)
{
    d->ui.cusSpinBoxWithUnits->setPlaceHolderText(text);
}

CusSpinBoxWithUnits *CusCustomInputPane::getCustomizeSpinBox()
{
    return d->ui.cusSpinBoxWithUnits;
}

QString CusCustomInputPane::getAutoRadioText() const
{
    return d->ui.radioButton_auto->text();
}

void CusCustomInputPane::setAutoRadioText(const QString &text)
{
    d->ui.radioButton_auto->setText(text);
}

QString CusCustomInputPane::getCustomizeRadioText() const
{
    return d->ui.radioButton_customize->text();
}

void CusCustomInputPane::setCustomizeRadioText(const QString &text)
{
    d->ui.radioButton_customize->setText(text);
}

void CusCustomInputPane::setAutoRadioSize(const QSize &size)
{
    d->ui.radioButton_auto->setFixedSize(
        size.expandedTo(QSize(0, 0)).boundedTo(QSize(QWIDGETSIZE_MAX, QWIDGETSIZE_MAX)));
}

void CusCustomInputPane::setRadioLayoutSpacing(int spacing)
{
    d->ui.horizontalLayout_2->setSpacing(qBound(0, spacing, QWIDGETSIZE_MAX));
}

void CusCustomInputPane::setRadiosVisible(bool visible)
{
    d->radiosVisible = visible;
    d->ui.widget_radios->setVisible(visible);
    (visible ? d->ui.radioButton_auto : d->ui.radioButton_customize)->setCheckedNoSignal(true);
    if (visible)
        onRadioAutoClicked();
    else
        onRadioCustomClicked();
}

void CusCustomInputPane::resetWidgetUiLanguage()
{
    d->autoText.renew(d->ui.radioButton_auto, tr("Auto"));
    d->customizeText.renew(d->ui.radioButton_customize, tr("Customize"));
}

bool CusCustomInputPane::event(QEvent *event)
{
    // A rule for what is inside the pane isn't matched anew when the client repolishes the pane.
    if (event->type() == QEvent::DynamicPropertyChange
        && static_cast<QDynamicPropertyChangeEvent *>(event)->propertyName() == "Invalid")
        vellum::restyle(d->ui.cusSpinBoxWithUnits);
    return QWidget::event(event);
}

void CusCustomInputPane::onRadioAutoClicked()
{
    choose(true);
}

void CusCustomInputPane::onRadioCustomClicked()
{
    choose(false);
}

void CusCustomInputPane::choose(bool autoChecked)
{
    const QPointer<CusCustomInputPane> alive(this);
    const bool changed = d->autoChecked != autoChecked;
    applyState(autoChecked);
    if (changed && alive)
        Q_EMIT signalAutoCheckChanged();
    if (alive)
        Q_EMIT signalCustomizeInputValChanged(d->autoChecked,
                                              d->autoChecked ? 0 : getCustomizeCurVal());
}

void CusCustomInputPane::applyState(bool autoChecked)
{
    d->autoChecked = autoChecked;
    const int parts = (d->radiosVisible ? 1 : 0) + (autoChecked ? 0 : 1);
    setFixedHeight(parts * kPartHeight + (parts > 1 ? kPartGap : 0));
    // Last, since a box that loses the focus by it runs the client's code.
    d->ui.cusSpinBoxWithUnits->setVisible(!autoChecked);
}
