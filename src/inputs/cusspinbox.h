#pragma once

#include "inputs/cusbasicspinbox.h"

/// A spin box that pads its number: two digits with a leading zero at first, so 05 for 5, as clocks
/// and channel numbers want it; in any base from 2 to 36.
///
/// The base is for showing only: what is typed is read in base 10, so a box that shows 26 as 1a
/// doesn't take an "a", and Return on it reads no number, which counts as 0.
///
/// With setInvaildValToRange(false), a number outside the range that was in the editor as it lost
/// the focus, or at Return, Enter, Up or Down, goes to the nearest limit at editingFinished().
class VELLUM_EXPORT CusSpinBox : public CusBasicSpinBox
{
    Q_OBJECT

public:
    explicit CusSpinBox(QWidget *parent = nullptr);
    ~CusSpinBox() override;

    int base();
    /// 10 by default; a base outside 2 to 36 changes nothing.
    void setBase(int base);
    int fieldWidth() const;
    /// The least number of characters, 2 by default; a negative one pads at the right. At most 64
    /// either way.
    void setFieldWidth(int width);
    QChar fillChar();
    /// What a short number is padded with, '0' by default.
    void setFillChar(QChar fill);

    bool eventFilter(QObject *watched, QEvent *event) override;

protected:
    QValidator::State validate(QString &input, int &pos) const override;
    QString textFromValue(int value) const override;
    int valueFromText(const QString &text) const override;

private:
    void uiInit();
    void showAgain();
    void clampLastInput();

    struct Private;
    const std::unique_ptr<Private> d;
};
