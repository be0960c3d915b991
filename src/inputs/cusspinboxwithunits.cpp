#include "inputs/cusspinboxwithunits.h"

#include <QLabel>
#include <QLineEdit>
#include <QStyle>
#include <QStyleOptionSpinBox>

namespace {

constexpr int kDefaultButtonWidth = 16;

} // namespace

struct CusSpinBoxWithUnits::Private
{
    QString unitTxt;
    int btnWidth = kDefaultButtonWidth;
    QLabel *unitLabel = nullptr;
};

CusSpinBoxWithUnits::CusSpinBoxWithUnits(QWidget *parent)
    : CusBasicSpinBox(parent)
    , d(std::make_unique<Private>())
{
    d->unitLabel = new QLabel(this);
    d->unitLabel->setObjectName(QStringLiteral("label_spinBoxUnits"));
    d->unitLabel->setAlignment(Qt::AlignRight | Qt::AlignVCenter);
    d->unitLabel->setProperty("h12", true);
}

CusSpinBoxWithUnits::~CusSpinBoxWithUnits() = default;

QString CusSpinBoxWithUnits::getUnitTxt() const
{
    return d->unitTxt;
}

void CusSpinBoxWithUnits::setUnitTxt(const QString &unit)
{
    d->unitTxt = unit;
    d->unitLabel->setText(unit);
    adjustLineEditWidth();
}

QString CusSpinBoxWithUnits::getPlaceHolderText() const
{
    return lineEdit()->placeholderText();
}

void CusSpinBoxWithUnits::adjustLineEditWidth()
{
    if (d->unitTxt.isEmpty()) {
        d->unitLabel->hide();
        lineEdit()->setMaximumWidth(qBound(0, width() - d->btnWidth, QWIDGETSIZE_MAX));
        return;
    }
    // Measured in the box's font, which is no smaller than the label's.
    const int unitWidth = fontMetrics().boundingRect(d->unitTxt).width();
    const int editWidth = qBound(0, width() - d->btnWidth - unitWidth, QWIDGETSIZE_MAX);
    lineEdit()->setMinimumWidth(editWidth);
    lineEdit()->setMaximumWidth(editWidth);
    const QRect place(rect().x() + editWidth, rect().y() + 1, unitWidth, height() - 2);
    d->unitLabel->setGeometry(QStyle::visualRect(layoutDirection(), rect(), place));
}

void CusSpinBoxWithUnits::resizeEvent(QResizeEvent *event)
{
    CusBasicSpinBox::resizeEvent(event);
    adjustLineEditWidth();
}

void CusSpinBoxWithUnits::paintEvent(QPaintEvent *event)
{
    CusBasicSpinBox::paintEvent(event);
    QStyleOptionSpinBox option;
    initStyleOption(&option);
    const int btnWidth =
        style()->subControlRect(QStyle::CC_SpinBox, &option, QStyle::SC_SpinBoxDown, this).width();
    if (btnWidth == d->btnWidth)
        return;
    d->btnWidth = btnWidth;
    adjustLineEditWidth();
}
