#include "common/custabbar.h"

#include <QToolButton>
#include <QWheelEvent>

CusTabBar::CusTabBar(QWidget *) { }

CusTabBar::~CusTabBar() = default;

void CusTabBar::paintEvent(QPaintEvent *event)
{
    // QTabBar places its arrows anew at each layout and has no switch that keeps the scrolling but
    // not the arrows, so they are shrunk each time. An equal geometry costs nothing.
    const auto arrows = findChildren<QToolButton *>(QString(), Qt::FindDirectChildrenOnly);
    for (QToolButton *arrow : arrows)
        arrow->setGeometry(arrow->x(), arrow->y(), 1, 1);
    QTabBar::paintEvent(event);
}

QSize CusTabBar::tabSizeHint(int index) const
{
    QSize hint = QTabBar::tabSizeHint(index);
    if (height() >= 1)
        hint.setHeight(qMax(hint.height(), height()));
    return hint;
}

void CusTabBar::wheelEvent(QWheelEvent *event)
{
    event->accept();
}
