#include "buttons/cuspushbutton.h"

#include "buttons/indicatortwins.h"
#include "common/saferect.h"

#include <QKeyEvent>
#include <QMouseEvent>
#include <QPointer>
#include <QStyleOptionButton>
#include <QStylePainter>
#include <QTimer>

struct CusPushButton::Private
{
    bool mEnableLongPress = false;
    QTimer longPressTimer;
    int mLongPressInternal = 300;
    int otherFixedWidth = 0;
    QString tipText; // what the button itself made its tool tip
};

CusPushButton::CusPushButton(QWidget *parent)
    : QPushButton(parent)
    , d(std::make_unique<Private>())
{
    d->longPressTimer.setSingleShot(true);
    connect(&d->longPressTimer, &QTimer::timeout, this, &CusPushButton::onLongPressTimeout);
}

CusPushButton::~CusPushButton() = default;

void CusPushButton::setEnableLongPress(bool enable)
{
    d->mEnableLongPress = enable;
    if (!enable)
        d->longPressTimer.stop();
}

bool CusPushButton::getEnableLongPress() const
{
    return d->mEnableLongPress;
}

void CusPushButton::setLongPressInternal(int milliseconds)
{
    d->mLongPressInternal = qMax(1, milliseconds);
}

int CusPushButton::getLongPressInternal() const
{
    return d->mLongPressInternal;
}

void CusPushButton::setOtherFixedWidth(int width)
{
    d->otherFixedWidth = width;
    update();
}

void CusPushButton::textAdjustBtnWidth(QStyleOptionButton *option)
{
    const int available = vellum::safeExtent(qint64(width()) - d->otherFixedWidth);
    const QString whole = option->text;
    option->text = vellum::elidedWithTip(this, whole, fontMetrics(), available);
    if (option->text != whole) {
        d->tipText = whole;
    } else if (!d->tipText.isEmpty()) {
        // The tip of an earlier text; one that the client set meanwhile stays.
        if (toolTip() == d->tipText)
            setToolTip(QString());
        d->tipText.clear();
    }
}

void CusPushButton::paintEvent(QPaintEvent * /*event*/)
{
    QStyleOptionButton option;
    initStyleOption(&option);
    textAdjustBtnWidth(&option);
    QStylePainter painter(this);
    painter.drawControl(QStyle::CE_PushButton, option);
}

void CusPushButton::startLongPress()
{
    if (d->mEnableLongPress && isDown())
        d->longPressTimer.start(d->mLongPressInternal);
}

void CusPushButton::onLongPressTimeout()
{
    // Not for a press that was drawn off the button, or ended without a release.
    if (isDown())
        Q_EMIT signalBtnLongPressed(isChecked());
}

void CusPushButton::mousePressEvent(QMouseEvent *event)
{
    // What the client does with pressed() may delete the button.
    const QPointer<CusPushButton> alive(this);
    QPushButton::mousePressEvent(event);
    if (alive && event->button() == Qt::LeftButton)
        startLongPress();
}

void CusPushButton::mouseReleaseEvent(QMouseEvent *event)
{
    if (event->button() == Qt::LeftButton)
        d->longPressTimer.stop();
    QPushButton::mouseReleaseEvent(event);
}

void CusPushButton::keyPressEvent(QKeyEvent *event)
{
    const QPointer<CusPushButton> alive(this);
    QPushButton::keyPressEvent(event);
    if (alive && event->key() == Qt::Key_Space && !event->isAutoRepeat())
        startLongPress();
}

void CusPushButton::keyReleaseEvent(QKeyEvent *event)
{
    if (event->key() == Qt::Key_Space && !event->isAutoRepeat())
        d->longPressTimer.stop();
    QPushButton::keyReleaseEvent(event);
}

void CusPushButton::hideEvent(QHideEvent *event)
{
    d->longPressTimer.stop();
    QPushButton::hideEvent(event);
}
