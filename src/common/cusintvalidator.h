#pragma once

#include "vellum_export.h"

#include <QIntValidator>

/// An integer validator without an intermediate state: an input is either good or refused.
///
/// A prefix of a permitted number that lies below the range can't be typed; with a bottom of 10
/// the user has to paste "15".
class VELLUM_EXPORT CusIntValidator : public QIntValidator
{
    Q_OBJECT

public:
    /// Permits every int.
    explicit CusIntValidator(QObject *parent = nullptr);
    /// Permits \a bottom to \a top, both included; nothing if \a top is below \a bottom.
    CusIntValidator(int bottom, int top, QObject *parent = nullptr);

    /// Acceptable for an empty input and for a decimal number in the range (C locale; a sign and
    /// surrounding blanks may stand with it), else Invalid. Changes neither argument.
    QValidator::State validate(QString &input, int &pos) const override;
};
