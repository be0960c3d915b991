#include "inputs/cusverrangeinputpane.h"

#include "common/defaulttext.h"
#include "common/restyle.h"
#include "inputs/cusspinboxwithunits.h"
#include "labels/angletipwidget.h"
#include "ui_cusverrangeinputpane.h"

#include <QPointer>

namespace {

/// The room of the tip button and its gap beside a label.
constexpr int kBesideLabel = 30;

/// What a pane's user entered; 0 on Auto.
int enteredValue(const CusCustomInputPane *pane)
{
    return pane->getAutoChecked() ? 0 : pane->getCustomizeCurVal();
}

void markInvalid(CusCustomInputPane *pane, const QString &text)
{
    pane->setProperty("Invalid", true);
    vellum::restyle(pane);
    AngleTiPWidget::showAngleTipText(pane->getCustomizeSpinBox(), text, ArrowWidget::Arrow_Left);
}

int usableSpacing(int spacing)
{
    return qBound(0, spacing, QWIDGETSIZE_MAX);
}

} // namespace

struct CusVerRangeInputPane::Private
{
    CusCustomInputPane *minPane() const { return ui.cusCustomInputPane_minVal; }
    CusCustomInputPane *maxPane() const { return ui.cusCustomInputPane_maxVal; }

    Ui::CusVerRangeInputPane ui;
    QString invalidText;
    vellum::DefaultText minLabelText;
    vellum::DefaultText maxLabelText;
};

CusVerRangeInputPane::CusVerRangeInputPane(QWidget *parent)
    : QWidget(parent)
    , d(std::make_unique<Private>())
{
    d->ui.setupUi(this);
    for (QLayout *layout : {static_cast<QLayout *>(d->ui.horizontalLayout_min),
                            static_cast<QLayout *>(d->ui.horizontalLayout_max)})
        layout->setAlignment(Qt::AlignLeft | Qt::AlignVCenter);
    resetWidgetUiLanguage();
    connectInit();
}

CusVerRangeInputPane::~CusVerRangeInputPane() = default;

void CusVerRangeInputPane::connectInit()
{
    for (CusCustomInputPane *pane : {d->minPane(), d->maxPane()}) {
        connect(pane, &CusCustomInputPane::signalCustomizeInputValChanged, this,
                &CusVerRangeInputPane::onCustomizeInputValChanged);
    }
}

void CusVerRangeInputPane::onCustomizeInputValChanged(bool autoCheck, int inputVal)
{
    Q_EMIT signalInputValChanged(sender() == d->minPane(), autoCheck, inputVal);
}

QString CusVerRangeInputPane::getMinLabelText() const
{
    return d->ui.cusLabel_minVal->text();
}

void CusVerRangeInputPane::setMinLabelText(const QString &text)
{
    d->ui.cusLabel_minVal->setText(text);
}

QString CusVerRangeInputPane::getMaxLabelText() const
{
    return d->ui.cusLabel_maxVal->text();
}

void CusVerRangeInputPane::setMaxLabelText(const QString &text)
{
    d->ui.cusLabel_maxVal->setText(text);
}

QString CusVerRangeInputPane::getMinUnit() const
{
    return d->minPane()->getCustomizeUnitTxt();
}

void CusVerRangeInputPane::setMinUnit(const QString &unit)
{
    d->minPane()->setCustomizeUnitTxt(unit);
}

QString CusVerRangeInputPane::getMaxUnit() const
{
    return d->maxPane()->getCustomizeUnitTxt();
}

void CusVerRangeInputPane::setMaxUnit(const QString &unit)
{
    d->maxPane()->setCustomizeUnitTxt(unit);
}

QString CusVerRangeInputPane::getMinHolderTxt() const
{
    return d->minPane()->getCustomizeHolderTxt();
}

void CusVerRangeInputPane::setMinHolderTxt(const QString &text)
{
    d->minPane()->setCustomizeHolderTxt(text);
}

QString CusVerRangeInputPane::getMaxHolderTxt() const
{
    return d->maxPane()->getCustomizeHolderTxt();
}

void CusVerRangeInputPane::setMaxHolderTxt(const QString &text)
{
    d->maxPane()->setCustomizeHolderTxt(text);
}

QString CusVerRangeInputPane::getMinBtnTipText() const
{
    return d->ui.cusClickTipButton_minTip->toolTip();
}

void CusVerRangeInputPane::setMinBtnTipText(const QString &text)
{
    d->ui.cusClickTipButton_minTip->setToolTip(text);
}

QString CusVerRangeInputPane::getMaxBtnTipText() const
{
    return d->ui.cusClickTipButton_maxTip->toolTip();
}

void CusVerRangeInputPane::setMaxBtnTipText(const QString &text)
{
    d->ui.cusClickTipButton_maxTip->setToolTip(text);
}

void CusVerRangeInputPane::setMinRadiaoBtnTxt(const QString &autoText, const QString &customizeText)
{
    d->minPane()->setAutoRadioText(autoText);
    d->minPane()->setCustomizeRadioText(customizeText);
}

void CusVerRangeInputPane::setMaxRadiaoBtnTxt(const QString &autoText, const QString &customizeText)
{
    d->maxPane()->setAutoRadioText(autoText);
    d->maxPane()->setCustomizeRadioText(customizeText);
}

void CusVerRangeInputPane::setInvalidText(const QString &text)
{
    d->invalidText = text;
}

bool CusVerRangeInputPane::getRangeVal(bool &minAuto, int &minVal, bool &maxAuto, int &maxVal)
{
    const int low = enteredValue(d->minPane());
    const int high = enteredValue(d->maxPane());
    const bool lowAuto = d->minPane()->getAutoChecked();
    const bool highAuto = d->maxPane()->getAutoChecked();
    if (!lowAuto && !highAuto && low > high) {
        QString text = tr("Minimum Time should not be greater than Maximum Time.");
        if (!d->invalidText.isEmpty())
            text = d->invalidText;
        markInvalid(d->minPane(), text);
        markInvalid(d->maxPane(), text);
        return false;
    }
    minAuto = lowAuto;
    minVal = low;
    maxAuto = highAuto;
    maxVal = high;
    return true;
}

void CusVerRangeInputPane::getMinCurVal(bool &autoChecked, int &value)
{
    autoChecked = d->minPane()->getAutoChecked();
    value = enteredValue(d->minPane());
}

void CusVerRangeInputPane::getMaxCurVal(bool &autoChecked, int &value)
{
    autoChecked = d->maxPane()->getAutoChecked();
    value = enteredValue(d->maxPane());
}

void CusVerRangeInputPane::setCurMinValInfo(bool autoChecked, int value)
{
    const QPointer<CusCustomInputPane> pane(d->minPane());
    pane->setAutoChecked(autoChecked);
    if (pane)
        pane->setCustomizeCurVal(value);
}

void CusVerRangeInputPane::setCurMaxValInfo(bool autoChecked, int value)
{
    const QPointer<CusCustomInputPane> pane(d->maxPane());
    pane->setAutoChecked(autoChecked);
    if (pane)
        pane->setCustomizeCurVal(value);
}

void CusVerRangeInputPane::setMinValRange(int minimum, int maximum)
{
    d->minPane()->getCustomizeSpinBox()->setRange(minimum, maximum);
}

void CusVerRangeInputPane::setMaxValRange(int minimum, int maximum)
{
    d->maxPane()->getCustomizeSpinBox()->setRange(minimum, maximum);
}

int CusVerRangeInputPane::getMainItemSpacing()
{
    return d->ui.verticalLayout_main->spacing();
}

void CusVerRangeInputPane::setMainItemSpacing(int spacing)
{
    d->ui.verticalLayout_main->setSpacing(usableSpacing(spacing));
}

int CusVerRangeInputPane::getSubItemSpacing()
{
    return d->ui.verticalLayout_minLayout->spacing();
}

void CusVerRangeInputPane::setSubItemSpacing(int spacing)
{
    d->ui.verticalLayout_minLayout->setSpacing(usableSpacing(spacing));
    d->ui.verticalLayout_maxLayout->setSpacing(usableSpacing(spacing));
}

void CusVerRangeInputPane::resetWidgetUiLanguage()
{
    d->minLabelText.renew(d->ui.cusLabel_minVal, tr("Min Val"));
    d->maxLabelText.renew(d->ui.cusLabel_maxVal, tr("Max Val"));
    d->minPane()->resetWidgetUiLanguage();
    d->maxPane()->resetWidgetUiLanguage();
}

void CusVerRangeInputPane::resizeEvent(QResizeEvent *event)
{
    QWidget::resizeEvent(event);
    // Their own limit: the labels size themselves while they paint, and would undo the widget's.
    d->ui.cusLabel_minVal->set_maxWidth(qMax(0, width() - kBesideLabel));
    d->ui.cusLabel_maxVal->set_maxWidth(qMax(0, width() - kBesideLabel));
}
