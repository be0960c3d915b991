#pragma once

#include "vellum_export.h"

#include <QDoubleSpinBox>

#include <functional>
#include <memory>

/// A double spin box with the SVG arrows of CusBasicSpinBox, which takes no more digits behind the
/// point than it shows, and an empty text. Keys, wheel and focus are those of QDoubleSpinBox. GUI
/// thread only.
class VELLUM_EXPORT CusDoubleSpinBox : public QDoubleSpinBox
{
    Q_OBJECT

public:
    explicit CusDoubleSpinBox(QWidget *parent = nullptr);
    ~CusDoubleSpinBox() override;

    /// Has the last word on a text that passed all other checks: it gets the whole text, the text
    /// without prefix and suffix, and the cursor's place. An empty function takes it away.
    void setValidInputCallBack(
        const std::function<QValidator::State(const QString &, const QString &, const int &)>
            &callback);

    /// The decimal separator that is watched is the point, in every locale.
    QValidator::State validate(QString &input, int &pos) const override;

protected:
    void paintEvent(QPaintEvent *event) override;

private:
    struct Private;
    const std::unique_ptr<Private> d;
};
