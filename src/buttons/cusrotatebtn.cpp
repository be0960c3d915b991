#include "buttons/cusrotatebtn.h"

#include <QMouseEvent>
#include <QPainter>
#include <QPropertyAnimation>
#include <QStyleOptionButton>

struct CusRotateBtn::Private
{
    int rotateAngle = 360;
    int rotateCount = 3;
    int rotateInterval = 1000;
    int angle = 0;
    bool enableClickRotate = true;
    QPropertyAnimation animation;
};

CusRotateBtn::CusRotateBtn(QWidget *parent)
    : CusSvgPushButton(parent)
    , d(std::make_unique<Private>())
{
    connect(this, &CusRotateBtn::signalAngleChanged, this, qOverload<>(&QWidget::update));
    d->animation.setTargetObject(this);
    d->animation.setPropertyName(QByteArrayLiteral("angle"));
}

CusRotateBtn::~CusRotateBtn() = default;

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
    Q_EMIT signalAngleChanged(angle);
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
    if (d->animation.state() != QAbstractAnimation::Stopped)
        d->animation.stop();
    run();
}

void CusRotateBtn::stopRotate()
{
    d->animation.stop();
}

void CusRotateBtn::run()
{
    if (d->rotateInterval <= 0 || d->rotateCount == 0)
        return;
    d->animation.setDuration(d->rotateInterval);
    d->animation.setLoopCount(qMax(-1, d->rotateCount));
    d->animation.setStartValue(0);
    d->animation.setEndValue(d->rotateAngle);
    d->animation.start();
}

void CusRotateBtn::mousePressEvent(QMouseEvent *event)
{
    if (d->animation.state() != QAbstractAnimation::Running && d->enableClickRotate)
        run();
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
