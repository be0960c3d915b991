#include "common/cusscrollhoverpane.h"

#include <QEvent>

struct CusScrollHoverPane::Private
{
    bool followParent = false;
};

CusScrollHoverPane::CusScrollHoverPane(QWidget *parent, bool followParent)
    : QFrame(parent)
    , d(std::make_unique<Private>())
{
    d->followParent = followParent;
    hide();
    if (followParent && parent)
        parent->installEventFilter(this);
}

CusScrollHoverPane::~CusScrollHoverPane() = default;

bool CusScrollHoverPane::eventFilter(QObject *watched, QEvent *event)
{
    if (watched == parent() && event->type() == QEvent::Resize && isVisible())
        placeAtLowerEdge();
    return QFrame::eventFilter(watched, event);
}

void CusScrollHoverPane::showEvent(QShowEvent *event)
{
    placeAtLowerEdge();
    QFrame::showEvent(event);
}

void CusScrollHoverPane::placeAtLowerEdge()
{
    const QWidget *area = parentWidget();
    if (!d->followParent || !area)
        return;
    const int paneHeight = qMax(height(), sizeHint().height());
    setGeometry(0, area->height() - paneHeight, area->width(), paneHeight);
    raise();
}
