#include "delegates/styledelegatecomfun.h"

#include "common/saferect.h"

#include <QApplication>
#include <QPainter>
#include <QRect>
#include <QStyleOptionButton>

namespace {

/// Styles draw a button through a picture of its size, for which a client's mistake must not take
/// all memory.
constexpr QSize kLargestStamp(2048, 2048);

} // namespace

void StyleDelegateComFun::drawSvgBtn(QPainter *painter, QStyleOptionButton *option,
                                     QPushButton *button, QStyle *style,
                                     CusSvgPushButton::DrawStype drawType)
{
    if (!painter || !option || !button || !style)
        return;
    button->ensurePolished();
    auto *svgButton = qobject_cast<CusSvgPushButton *>(button);
    if (!svgButton) {
        style->drawControl(QStyle::CE_PushButton, option, painter, button);
        return;
    }
    // A button lays its icon out from the painter's origin, so the painter goes to the cell.
    const QPoint corner = option->rect.topLeft();
    QStyleOptionButton local = *option;
    local.rect = QRect(QPoint(), option->rect.size().boundedTo(kLargestStamp));
    painter->translate(corner);
    svgButton->paintSvgBtn(painter, local, style, drawType);
    painter->translate(-corner);
}

void StyleDelegateComFun::paintBoundRect(QPainter *painter, const QRect &rect, QStyle::State state,
                                         QWidget *widget, QStyle *style)
{
    if (!painter || !widget)
        return;
    widget->ensurePolished();
    QStyleOptionButton option;
    option.state = state;
    option.rect = rect;
    if (!style)
        style = QApplication::style();
    style->drawControl(QStyle::CE_PushButton, &option, painter, widget);
}

bool calcItemPartRect(const QRect &cell, int mode, const QSize &size, int margin, QRect &out,
                      const QPoint &point)
{
    if (!cell.isValid() || mode < DelegateIconPos_Center || mode > DelegateIconPos_Point)
        return false;
    const qint64 cellX = cell.x();
    const qint64 cellEnd = cellX + cell.width();
    const qint64 centredX = cellX + (qint64(cell.width()) - size.width()) / 2;
    const qint64 centredY = cell.y() + (qint64(cell.height()) - size.height()) / 2;
    const bool marginsFit = qint64(size.width()) + 2 * qint64(margin) <= cell.width();

    qint64 x = centredX;
    qint64 y = mode == DelegateIconPos_Point ? qint64(cell.y()) + point.y() : centredY;
    if (size.width() > cell.width()) {
        out = vellum::safeRect(cellX, y, cell.width(), size.height());
        return true;
    }
    switch (mode) {
    case DelegateIconPos_Left:
        x = marginsFit ? cellX + margin : centredX;
        break;
    case DelegateIconPos_Right:
        x = marginsFit ? cellEnd - margin - size.width() : centredX;
        break;
    case DelegateIconPos_Point:
        x = qMin(cellX + point.x(), cellEnd - size.width());
        y = qMin(y, qint64(cell.y()) + cell.height() - size.height());
        break;
    default:
        break;
    }
    out = vellum::safeRect(x, y, size.width(), size.height());
    return true;
}
