#include "buttons/cusclicktipbutton.h"

#include <QCoreApplication>
#include <QHelpEvent>
#include <QMouseEvent>
#include <QPointer>

CusClickTipButton::CusClickTipButton(QWidget *parent)
    : CusSvgPushButton(parent)
{
    setObjectName(QStringLiteral("CusClickTipButton"));
}

void CusClickTipButton::mouseReleaseEvent(QMouseEvent *event)
{
    // What the client does with clicked() may delete the button.
    const QPointer<CusClickTipButton> alive(this);
    CusSvgPushButton::mouseReleaseEvent(event);
    if (alive) {
        QCoreApplication::postEvent(
            this, new QHelpEvent(QEvent::ToolTip, event->pos(), event->globalPos()));
    }
}
