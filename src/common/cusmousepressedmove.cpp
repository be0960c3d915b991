#include "common/cusmousepressedmove.h"

#include "common/safeint.h"

#include <QMouseEvent>
#include <QPoint>

namespace {

// In double, which holds every difference of two ints.
int distance(int from, int to)
{
    return vellum::toInt(static_cast<double>(to) - from);
}

} // namespace

struct CusMousePressedMove::Private
{
    struct Drag
    {
        bool pressed = false;
        QPoint curPos{0, 0};
        QPoint startPos{0, 0};
        int dx = 0;
        int dy = 0;
        int movedX = 0;
        int movedY = 0;
    };

    Drag drag;
    Qt::MouseButton pressedBtn = Qt::LeftButton;
};

CusMousePressedMove::CusMousePressedMove(QObject *parent)
    : QObject(parent)
    , d(std::make_unique<Private>())
{
}

CusMousePressedMove::~CusMousePressedMove() = default;

void CusMousePressedMove::setPressedBtn(Qt::MouseButton button)
{
    d->pressedBtn = button;
}

void CusMousePressedMove::mousePressEvent(QMouseEvent *event)
{
    if (!event)
        return;
    d->drag = Private::Drag();
    if (!(event->button() & d->pressedBtn))
        return;
    d->drag.pressed = true;
    d->drag.curPos = event->pos();
    d->drag.startPos = event->pos();
}

void CusMousePressedMove::mouseMoveEvent(QMouseEvent *event)
{
    if (!event || !d->drag.pressed)
        return;
    const int dx = distance(d->drag.curPos.x(), event->pos().x());
    const int dy = distance(d->drag.curPos.y(), event->pos().y());
    // In whole pixels a step is at least one pixel long as soon as one axis differs.
    if (dx == 0 && dy == 0)
        return;
    d->drag.dx = dx;
    d->drag.dy = dy;
    d->drag.curPos = event->pos();
}

void CusMousePressedMove::mouseReleaseEvent(QMouseEvent *event)
{
    if (!event)
        return;
    d->drag.pressed = false;
    d->drag.movedX = distance(d->drag.startPos.x(), event->pos().x());
    d->drag.movedY = distance(d->drag.startPos.y(), event->pos().y());
}

bool CusMousePressedMove::getCurMovedXY(int &x, int &y) const
{
    if (!d->drag.pressed)
        return false;
    x = distance(d->drag.startPos.x(), d->drag.curPos.x());
    y = distance(d->drag.startPos.y(), d->drag.curPos.y());
    return true;
}

bool CusMousePressedMove::getMovedDxDy(int &dx, int &dy) const
{
    if (!d->drag.pressed)
        return false;
    dx = d->drag.dx;
    dy = d->drag.dy;
    return true;
}

bool CusMousePressedMove::getMovedXY(int &x, int &y) const
{
    x = d->drag.movedX;
    y = d->drag.movedY;
    return true;
}

bool CusMousePressedMove::getStartMovedPoint(QPoint &point) const
{
    if (!d->drag.pressed)
        return false;
    point = d->drag.startPos;
    return true;
}
