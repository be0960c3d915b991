#include "buttons/delaybutton.h"

#include <QDebug>
#include <QMouseEvent>
#include <QPointer>
#include <QTimer>

struct DelayButton::Private
{
    int delayTime = 500;
    int pressedTime = 500;
    QTimer delayTimer;
    QTimer pressedTimer;
};

DelayButton::DelayButton(QWidget *parent)
    : CusSvgPushButton(parent)
    , d(std::make_unique<Private>())
{
    initUi();
    initConnect();
}

DelayButton::~DelayButton() = default;

void DelayButton::initUi()
{
    d->delayTimer.setInterval(d->delayTime);
    d->delayTimer.setSingleShot(true);
    d->pressedTimer.setInterval(d->pressedTime);
    d->pressedTimer.setSingleShot(true);
}

void DelayButton::initConnect()
{
    connect(&d->pressedTimer, &QTimer::timeout, this, &DelayButton::onPressedTimeout);
    connect(&d->delayTimer, &QTimer::timeout, this, &DelayButton::onDelayTimeout);
    connect(this, &QAbstractButton::released, this, &DelayButton::onReleased);
}

void DelayButton::setDelayTime(int milliseconds)
{
    if (milliseconds <= 0)
        return;
    d->delayTime = milliseconds;
    d->delayTimer.setInterval(milliseconds);
}

void DelayButton::setPressedTime(int milliseconds)
{
    if (milliseconds <= 0)
        return;
    d->pressedTime = milliseconds;
    d->pressedTimer.setInterval(milliseconds);
}

void DelayButton::mousePressEvent(QMouseEvent *event)
{
    // What the client does with pressed() may delete the button.
    const QPointer<DelayButton> alive(this);
    CusSvgPushButton::mousePressEvent(event);
    if (!alive)
        return;
    d->pressedTimer.start();
    d->delayTimer.stop();
}

void DelayButton::mouseReleaseEvent(QMouseEvent *event)
{
    CusSvgPushButton::mouseReleaseEvent(event);
}

void DelayButton::onPressedTimeout()
{
    qDebug("Pressed timeout");
}

void DelayButton::onDelayTimeout()
{
    Q_EMIT signalDelayReleased();
    qDebug("delay release");
}

void DelayButton::onReleased()
{
    if (d->pressedTimer.isActive()) {
        d->pressedTimer.stop();
        d->delayTimer.start();
        return;
    }
    Q_EMIT signalDelayReleased();
    qDebug("normal release");
}
