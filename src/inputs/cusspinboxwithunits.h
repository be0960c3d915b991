#pragma once

#include "inputs/cusbasicspinbox.h"

/// A spin box with a unit between the number and the arrows, which is no part of the text.
///
/// The unit stands in a label "label_spinBoxUnits" with the dynamic property "h12". A box that was
/// laid out without a unit, or whose unit was emptied, hides the label for good: set the unit
/// before the box is first shown.
class VELLUM_EXPORT CusSpinBoxWithUnits : public CusBasicSpinBox
{
    Q_OBJECT
    Q_PROPERTY(QString unitTxt READ getUnitTxt WRITE setUnitTxt)
    Q_PROPERTY(QString placeHolderText READ getPlaceHolderText WRITE setPlaceHolderText)

public:
    explicit CusSpinBoxWithUnits(QWidget *parent = nullptr);
    ~CusSpinBoxWithUnits() override;

    QString getUnitTxt() const;
    void setUnitTxt(const QString &unit);
    QString getPlaceHolderText() const;

protected:
    void paintEvent(QPaintEvent *event) override;
    void resizeEvent(QResizeEvent *event) override;

private:
    void adjustLineEditWidth();

    struct Private;
    const std::unique_ptr<Private> d;
};
