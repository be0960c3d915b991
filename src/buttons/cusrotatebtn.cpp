#include "buttons/cusrotatebtn.h"

#include <QMouseEvent>
#include <QPainter>
#include <QPointer>
#include <QPropertyAnimation>
#include <QStyleOptionButton>

#include <limits>

struct CusRotateBtn::Private
{
    int rotateAngle = 360;
    int rotateCount = 3;
    int rotateInterval = 1000;
    int angle = 0;
    bool enableClickRotate = true;
    std::unique_ptr<QPropertyAnimation> animation = std::make_unique<QPropertyAnimation>();
    int runningSignals = 0;
};

CusRotateBtn::CusRotateBtn(QWidget *parent)
    : CusSvgPushButton(parent)
    , d(std::make_unique<Private>())
{
    connect(this, &CusRotateBtn::signalAngleChanged, this, qOverload<>(&QWidget::update));
    d->animation->setTargetObject(this);
    d->animation->setPropertyName(QByteArrayLiteral("angle"));
}

CusRotateBtn::~CusRotateBtn()
{
    if (d->runningSignals == 0)
        return;
    // A client deletes the button in signalAngleChanged. The animation that has just set the angle
    // goes on below that slot, so it must outlive the button.
    d->animation->stop();
    d->animation.release()->deleteLater();
}

int CusRotateBtn::getRotateAngle() const
{
    return d->rotateAngle;
}

void CusRotateBtn::setRotateAngle(int angle)
{
    d->rotateAngle = angle;
}

int CusRotateBtn::getRotateCount() const
{
    return d->rotateCount;
}

void CusRotateBtn::setRotateCount(int count)
{
    d->rotateCount = count;
}

int CusRotateBtn::getRotateInterval() const
{
    return d->rotateInterval;
}

void CusRotateBtn::setRotateInterval(int interval)
{
    d->rotateInterval = interval;
}

int CusRotateBtn::getAngle() const
{
    return d->angle;
}

void CusRotateBtn::setAngle(int angle)
{
    if (d->angle == angle)
        return;
    d->angle = angle;
    const QPointer<CusRotateBtn> alive(this);
    ++d->runningSignals;
    Q_EMIT signalAngleChanged(angle);
    if (alive)
        --d->runningSignals;
}

bool CusRotateBtn::getEnableClickRotate() const
{
    return d->enableClickRotate;
}

void CusRotateBtn::setEnableClickRotate(bool enable)
{
    d->enableClickRotate = enable;
}

void CusRotateBtn::startRotate()
{
    if (d->animation->state() != QAbstractAnimation::Stopped)
        d->animation->stop();
    run();
}

void CusRotateBtn::stopRotate()
{
    d->animation->stop();
}

void CusRotateBtn::run()
{
    if (d->rotateInterval <= 0 || d->rotateCount == 0)
        return;
    d->animation->setDuration(d->rotateInterval);
    // The animation counts a whole run in an int of milliseconds.
    const int most = std::numeric_limits<int>::max() / d->rotateInterval;
    d->animation->setLoopCount(qBound(-1, d->rotateCount, most));
    d->animation->setStartValue(0);
    d->animation->setEndValue(d->rotateAngle);
    d->animation->start();
}

void CusRotateBtn::mousePressEvent(QMouseEvent *event)
{
    // The run begins with signalAngleChanged, in which the client may delete the button.
    const QPointer<CusRotateBtn> alive(this);
    if (d->animation->state() != QAbstractAnimation::Running && d->enableClickRotate)
        run();
    if (alive)
        CusSvgPushButton::mousePressEvent(event);
}

void CusRotateBtn::paintEvent(QPaintEvent *)
{
    QPainter painter(this);
    painter.setRenderHints(QPainter::SmoothPixmapTransform | QPainter::Antialiasing);
    const int halfWidth = width() / 2;
    const int halfHeight = height() / 2;
    painter.translate(halfWidth, halfHeight);
    painter.rotate(d->angle);
    QStyleOptionButton option;
    initStyleOption(&option);
    option.rect.adjust(-halfWidth, -halfHeight, -halfWidth, -halfHeight);
    if (getEnablePaintSvgBtn())
        paintSvgBtn(&painter, option, style(), DrawStype_Widget);
    else
        style()->drawControl(QStyle::CE_PushButton, &option, &painter, this);
}
