#pragma once

#include "vellum_export.h"

#include <QSlider>

#include <functional>
#include <memory>

/// A slider that works in doubles by a step, with its value as text at the handle.
///
/// QSlider's integers count steps, so their range follows the double range; a step so small that
/// they would overflow has the ints' limits. NaN and infinite limits or steps are ignored. The
/// handle is a hidden button that the application's style sheet dresses by its object name,
/// "btn_sliderHandle". A press of the left button beside the handle sets the value from its place.
/// Keyboard and wheel are QSlider's.
class VELLUM_EXPORT CusDoubleSlider : public QSlider
{
    Q_OBJECT
    Q_PROPERTY(bool showText READ allwaysShowText WRITE setAllwaysShowText)
    Q_PROPERTY(double doubleMinVal READ getDoubleMinimum WRITE setDoubleMinimum)
    Q_PROPERTY(double doubleMaxVal READ getDoubleMaximum WRITE setDoubleMaximum)
    Q_PROPERTY(double valueStep READ getValueStep WRITE setValueStep)
    Q_PROPERTY(double doubleVal READ getDoubleVal WRITE setDoubleVal)

public:
    /// A horizontal slider from 0 to 100 by 0.01.
    explicit CusDoubleSlider(QWidget *parent = nullptr);
    explicit CusDoubleSlider(Qt::Orientation orientation, QWidget *parent = nullptr);
    ~CusDoubleSlider() override;

    /// Formats the value's text; an empty function means one decimal.
    void registerValToTextCb(const std::function<QString(double)> &callback);
    void setAllwaysShowText(bool show);
    bool allwaysShowText() const;

    /// A negative minimum counts as 0.
    void setDoubleMinimum(double minimum);
    double getDoubleMinimum() const;
    void setDoubleMaximum(double maximum);
    double getDoubleMaximum() const;
    /// Ignored unless \a maximum is above \a minimum.
    void setDoubleValueRange(double minimum, double maximum);
    /// Ignored unless it is above 0 and less than the whole range. The value stays.
    void setValueStep(double step);
    double getValueStep() const;
    /// Sets the value, kept within the limits, without any signal. NaN is ignored.
    void setDoubleVal(double value);
    double getDoubleVal() const;

Q_SIGNALS:
    /// The user or a change of the limits moved the value. A drag tells each step twice, once of
    /// them also where tracking is off.
    void signalValueChanged(const double &value);
    void signalMouseReleased(const double &value);

protected:
    void mousePressEvent(QMouseEvent *event) override;
    void mouseReleaseEvent(QMouseEvent *event) override;
    void paintEvent(QPaintEvent *event) override;
    void sliderChange(SliderChange change) override;

private Q_SLOTS:
    void updateCurVal(int value);

private:
    void updateRange();
    double bounded(double value) const;
    QRect textHandle() const;
    void paintSlider(QPainter *painter);
    void paintValText(QPainter *painter);

    struct Private;
    const std::unique_ptr<Private> d;
};
