#include "common/cusintvalidator.h"

CusIntValidator::CusIntValidator(QObject *parent)
    : QIntValidator(parent)
{
}

CusIntValidator::CusIntValidator(int bottom, int top, QObject *parent)
    : QIntValidator(bottom, top, parent)
{
}

QValidator::State CusIntValidator::validate(QString &input, int &) const
{
    if (input.isEmpty())
        return Acceptable;
    bool isNumber = false;
    const int value = input.toInt(&isNumber, 10);
    return isNumber && bottom() <= value && value <= top() ? Acceptable : Invalid;
}
