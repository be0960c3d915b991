#include "buttons/svgbtnlayout.h"

#include "common/cusuicommonfun.h"
#include "common/saferect.h"

#include <QStyleOptionButton>

namespace vellum {

namespace {

constexpr int kExtraOfAdjustedSize = 5;

/// A place and a size, wide enough for the sums of any margins and sizes.
struct Box
{
    qint64 x = 0;
    qint64 y = 0;
    qint64 w = 0;
    qint64 h = 0;

    QRect toRect() const { return safeRect(x, y, w, h); }
};

/// Places \a a and, right of it, \a b. Where they are centred in height they count from the top of
/// the widget, not of the content: a top margin shortens the height that they are centred in.
/// Clients' sheets are tuned to that.
void placeInRow(CusSvgPushButton::BtnFlow flow, const Box &content, qint64 space, Box &a, Box &b)
{
    const qint64 spare = content.w - space - a.w - b.w;
    a.x = content.x + spare / 2;
    a.y = (content.h - a.h) / 2;
    b.y = (content.h - b.h) / 2;
    switch (flow) {
    case CusSvgPushButton::Flow_Left:
        a.x = content.x;
        break;
    case CusSvgPushButton::Flow_Right:
        a.x = content.x + spare;
        break;
    case CusSvgPushButton::Flow_Top:
        a.y = b.y = content.y;
        break;
    case CusSvgPushButton::Flow_Bottom:
        a.y = content.y + content.h - a.h;
        b.y = content.y + content.h - b.h;
        break;
    case CusSvgPushButton::Flow_Center:
        break;
    }
    b.x = a.x + a.w + space;
}

/// Places \a a and, below it, \a b. As in a row, centring across counts from the widget's edge.
void placeInColumn(CusSvgPushButton::BtnFlow flow, const Box &content, qint64 space, Box &a, Box &b)
{
    const qint64 spare = content.h - space - a.h - b.h;
    a.y = content.y + spare / 2;
    a.x = (content.w - a.w) / 2;
    b.x = (content.w - b.w) / 2;
    switch (flow) {
    case CusSvgPushButton::Flow_Left:
        a.x = b.x = content.x;
        break;
    case CusSvgPushButton::Flow_Right:
        a.x = content.x + content.w - a.w;
        b.x = content.x + content.w - b.w;
        break;
    case CusSvgPushButton::Flow_Top:
        a.y = content.y;
        break;
    case CusSvgPushButton::Flow_Bottom:
        a.y = content.y + spare;
        break;
    case CusSvgPushButton::Flow_Center:
        break;
    }
    b.y = a.y + a.h + space;
}

Box textBox(const QStyleOptionButton &option, const QWidget *widget)
{
    if (option.text.isEmpty())
        return {};
    const QSize size =
        CusUiCommonFun::textBoundingRectUi(option.text, option.fontMetrics, widget).size();
    return {0, 0, size.width(), size.height()};
}

} // namespace

bool SvgBtnLayout::isRow() const
{
    return txtPos == CusSvgPushButton::Txt_Pos_Left || txtPos == CusSvgPushButton::Txt_Pos_Right;
}

QRect SvgBtnLayout::backgroundRect(const QRect &rect, const QSize &size) const
{
    qint64 x = (qint64(rect.width()) - size.width()) / 2;
    qint64 y = (qint64(rect.height()) - size.height()) / 2;
    if (btnFlow == CusSvgPushButton::Flow_Left)
        x = leftMargin;
    else if (btnFlow == CusSvgPushButton::Flow_Right)
        x = qint64(rect.width()) - rightMargin - size.width();
    else if (btnFlow == CusSvgPushButton::Flow_Top)
        y = topMargin;
    else if (btnFlow == CusSvgPushButton::Flow_Bottom)
        y = qint64(rect.height()) - bottomMargin - size.height();
    return safeRect(rect.x() + x, rect.y() + y, size.width(), size.height());
}

SvgBtnContent SvgBtnLayout::content(const QStyleOptionButton &option, const QSize &iconSize,
                                    const QWidget *widget) const
{
    const QRect &rect = option.rect;
    if (txtPos == CusSvgPushButton::Txt_Pos_Center)
        return {QRect(), rect, option.text};

    const Box inner{qint64(rect.x()) + leftMargin, qint64(rect.y()) + topMargin,
                    qint64(rect.width()) - rightMargin - leftMargin,
                    qint64(rect.height()) - bottomMargin - topMargin};
    if (inner.w < 1 || inner.h < 1)
        return {};

    QString shownText = option.text;
    Box icon{0, 0, iconSize.width(), iconSize.height()};
    Box text = textBox(option, widget);
    const bool hasBoth = icon.w != 0 && icon.h != 0 && text.w != 0 && text.h != 0;
    const qint64 space = hasBoth ? svgTxtSpace : 0;
    if (!isRow()) {
        text.h = qMin(text.h, inner.h - space - icon.h);
    } else if (space + text.w + icon.w > inner.w) {
        text.w = inner.w - space - icon.w;
        shownText = option.fontMetrics.elidedText(option.text, Qt::ElideRight, safeExtent(text.w));
    }
    const bool textFirst =
        txtPos == CusSvgPushButton::Txt_Pos_Left || txtPos == CusSvgPushButton::Txt_Pos_Top;
    const auto place = isRow() ? placeInRow : placeInColumn;
    place(btnFlow, inner, space, textFirst ? text : icon, textFirst ? icon : text);
    return {icon.toRect(), text.toRect(), shownText};
}

QSize SvgBtnLayout::sizeAround(const QSize &iconSize, const QSize &textSize) const
{
    const qint64 space = iconSize.width() == 0 || iconSize.height() == 0 ? 0 : svgTxtSpace;
    qint64 width = qint64(leftMargin) + rightMargin + kExtraOfAdjustedSize;
    qint64 height = qint64(topMargin) + bottomMargin + kExtraOfAdjustedSize;
    if (isRow()) {
        width += textSize.width() + iconSize.width() + space;
        height += qMax(iconSize.height(), textSize.height());
    } else {
        width += qMax(iconSize.width(), textSize.width());
        height += textSize.height() + iconSize.height() + space;
    }
    return {qMax(0, safeExtent(width)), qMax(0, safeExtent(height))};
}

} // namespace vellum
