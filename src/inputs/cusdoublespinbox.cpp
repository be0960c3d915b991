#include "inputs/cusdoublespinbox.h"

#include "inputs/spinboxparts.h"

#include <QStyleOptionSpinBox>
#include <QStylePainter>

struct CusDoubleSpinBox::Private
{
    vellum::SpinBoxArrows arrows;
    std::function<QValidator::State(const QString &, const QString &, const int &)>
        validInputCallBack;
};

CusDoubleSpinBox::CusDoubleSpinBox(QWidget *parent)
    : QDoubleSpinBox(parent)
    , d(std::make_unique<Private>())
{
}

CusDoubleSpinBox::~CusDoubleSpinBox() = default;

void CusDoubleSpinBox::setValidInputCallBack(
    const std::function<QValidator::State(const QString &, const QString &, const int &)> &callback)
{
    d->validInputCallBack = callback;
}

QValidator::State CusDoubleSpinBox::validate(QString &input, int &pos) const
{
    const QValidator::State state = QDoubleSpinBox::validate(input, pos);
    if (state == QValidator::Invalid)
        return state;
    const QString text = vellum::stripAffixes(input, prefix(), suffix());
    if (text.isEmpty())
        return QValidator::Acceptable;
    const int point = text.indexOf(QLatin1Char('.'));
    if (point >= 0 && text.size() - point - 1 > decimals())
        return QValidator::Invalid;
    if (!d->validInputCallBack)
        return state;
    // A copy: the callback may set another one.
    const auto callback = d->validInputCallBack;
    return callback(input, text, pos);
}

void CusDoubleSpinBox::paintEvent(QPaintEvent *event)
{
    Q_UNUSED(event)
    QStyleOptionSpinBox option;
    initStyleOption(&option);
    QStylePainter painter(this);
    d->arrows.paint(&painter, &option, this);
}
