#pragma once

#include "buttons/cussvgpushbutton.h"

#include <memory>

/// An SVG button that turns by itself, a refresh button for example.
///
/// The whole button turns about its middle, its base included. The icon layer is not centred about
/// that middle, since centring counts from the upper left corner: a picture that shall spin in
/// place belongs in the background layer.
///
/// A press starts a run of rotateCount turns from 0 to rotateAngle degrees, rotateInterval
/// milliseconds each; afterwards the button stays at the angle it reached. While it is hidden a
/// turn goes on, but paints nothing.
class VELLUM_EXPORT CusRotateBtn : public CusSvgPushButton
{
    Q_OBJECT
    Q_PROPERTY(int rotateAngle READ getRotateAngle WRITE setRotateAngle)
    Q_PROPERTY(int rotateCount READ getRotateCount WRITE setRotateCount)
    Q_PROPERTY(int rotateInterval READ getRotateInterval WRITE setRotateInterval)
    Q_PROPERTY(int angle READ getAngle WRITE setAngle NOTIFY signalAngleChanged)

public:
    explicit CusRotateBtn(QWidget *parent = nullptr);
    ~CusRotateBtn() override;

    /// The angle that a turn ends at, in degrees clockwise; 360 at first. Like the next two, it
    /// counts from the next run on.
    int getRotateAngle() const;
    void setRotateAngle(int angle);

    /// How many turns a run has, 3 at first. 0: there is nothing to run; negative: without end.
    int getRotateCount() const;
    void setRotateCount(int count);

    /// Milliseconds per turn, 1000 at first. 0 and less: there is nothing to run.
    int getRotateInterval() const;
    void setRotateInterval(int interval);

    /// The present angle, in degrees clockwise.
    int getAngle() const;
    void setAngle(int angle);

    /// Whether a press starts a run; true at first.
    bool getEnableClickRotate() const;
    void setEnableClickRotate(bool enable);

public Q_SLOTS:
    /// Starts a run, afresh if one is going on, also where presses don't.
    void startRotate();
    /// Ends the run. The angle stays; setAngle(0) sets the button upright.
    void stopRotate();

Q_SIGNALS:
    void signalAngleChanged(int angle);

protected:
    void mousePressEvent(QMouseEvent *event) override;
    void paintEvent(QPaintEvent *event) override;

private:
    void run();

    struct Private;
    const std::unique_ptr<Private> d;
};
