#include "labels/cusellipsislabel.h"

#include <QPainter>
#include <QStyle>
#include <QStyleOption>

namespace {

constexpr int kDefaultMaxWidth = 65535;

} // namespace

struct CusEllipsisLabel::Private
{
    int maxWidth = kDefaultMaxWidth;
    bool customToolTip = false;
};

CusEllipsisLabel::CusEllipsisLabel(QWidget *parent)
    : QLabel(parent)
    , d(std::make_unique<Private>())
{
}

CusEllipsisLabel::~CusEllipsisLabel() = default;

int CusEllipsisLabel::maxWidth() const
{
    return d->maxWidth;
}

void CusEllipsisLabel::set_maxWidth(int width)
{
    if (width == d->maxWidth)
        return;
    d->maxWidth = width;
    // A label without width is never painted, so it could not grow out of a limit of 0 by itself.
    if (maximumWidth() == 0)
        takeWidth(1);
    update();
    Q_EMIT maxWidthChanged(width);
}

bool CusEllipsisLabel::customToolTip() const
{
    return d->customToolTip;
}

void CusEllipsisLabel::set_customToolTip(bool custom)
{
    if (custom == d->customToolTip)
        return;
    d->customToolTip = custom;
    Q_EMIT customToolTipChanged(custom);
}

void CusEllipsisLabel::paintEvent(QPaintEvent *event)
{
    const int advance = fontMetrics().horizontalAdvance(text());
    if (advance < d->maxWidth) {
        // Painting is what lets the label grow, so it keeps a pixel to paint without a text.
        takeWidth(qMax(1, advance));
        QLabel::paintEvent(event);
        return;
    }
    takeWidth(d->maxWidth);
    drawElided(d->maxWidth);
    if (!d->customToolTip && toolTip() != text())
        setToolTip(text());
}

void CusEllipsisLabel::takeWidth(int width)
{
    const int taken = qBound(0, width, QWIDGETSIZE_MAX);
    setMaximumWidth(taken);
    resize(taken, height());
}

void CusEllipsisLabel::drawElided(int width)
{
    QPainter painter(this);
    drawFrame(&painter);
    QStyleOption option;
    option.initFrom(this);
    const QString elided = fontMetrics().elidedText(text(), Qt::ElideRight, width);
    style()->drawItemText(&painter, option.rect, int(alignment()), option.palette, isEnabled(),
                          elided, foregroundRole());
}
