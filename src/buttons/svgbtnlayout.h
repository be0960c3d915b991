#pragma once

#include "buttons/cussvgpushbutton.h"

#include <QRect>
#include <QString>

namespace vellum {

/// Where a button's icon and text go, and what fits of the text.
struct SvgBtnContent
{
    QRect icon;
    QRect text;
    QString shownText;
};

/// The placement settings of a button, any ints.
struct SvgBtnLayout
{
    /// The background layer's rectangle in a button at \a rect.
    QRect backgroundRect(const QRect &rect, const QSize &size) const;
    /// The places of icon and text in \a option's rectangle. \a iconSize is invalid, -1 by -1,
    /// where there is no icon, and enters the sums as it is. \a widget is asked for the style's
    /// text margin.
    SvgBtnContent content(const QStyleOptionButton &option, const QSize &iconSize,
                          const QWidget *widget) const;
    /// The size that holds margins, icon and text, at least 0 by 0.
    QSize sizeAround(const QSize &iconSize, const QSize &textSize) const;

    bool isRow() const;

    int leftMargin = 0;
    int rightMargin = 0;
    int topMargin = 0;
    int bottomMargin = 0;
    CusSvgPushButton::BtnFlow btnFlow = CusSvgPushButton::Flow_Center;
    CusSvgPushButton::BtnTxtPos txtPos = CusSvgPushButton::Txt_Pos_Right;
    int svgTxtSpace = 6;
};

} // namespace vellum
