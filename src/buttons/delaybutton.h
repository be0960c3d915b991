#pragma once

#include "buttons/cussvgpushbutton.h"

#include <memory>

/// An SVG button that tells a tap from a press and delays the release of a tap, for motions that a
/// camera needs a moment to take up: pressed() starts one and signalDelayReleased() stops it.
///
/// A release within pressedTime of the press is a tap, and its signal comes delayTime later; the
/// release of a longer press is told at once. A press in between cancels the signal that is due.
class VELLUM_EXPORT DelayButton : public CusSvgPushButton
{
    Q_OBJECT

public:
    explicit DelayButton(QWidget *parent = nullptr);
    ~DelayButton() override;

    /// Milliseconds from the release of a tap to the signal, 500 at first; 0 and less are ignored.
    void setDelayTime(int milliseconds);
    /// Milliseconds from which on a press is no tap, 500 at first; 0 and less are ignored.
    void setPressedTime(int milliseconds);

Q_SIGNALS:
    void signalDelayReleased();

protected:
    void mousePressEvent(QMouseEvent *event) override;
    void mouseReleaseEvent(QMouseEvent *event) override;

private Q_SLOTS:
    void onPressedTimeout();
    void onDelayTimeout();

private:
    void initUi();
    void initConnect();
    void onReleased();

    struct Private;
    const std::unique_ptr<Private> d;
};
