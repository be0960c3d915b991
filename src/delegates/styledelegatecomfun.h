#pragma once

#include "buttons/cussvgpushbutton.h"
#include "vellum_export.h"

#include <QPoint>
#include <QStyle>

class QPainter;
class QPushButton;
class QRect;
class QSize;
class QStyleOptionButton;
class QWidget;

/// Where calcItemPartRect() places a part in its cell.
enum DelegateIconPosType : int
{
    DelegateIconPos_Center = 0,
    DelegateIconPos_Left = 1,
    DelegateIconPos_Right = 2,
    DelegateIconPos_Point = 3
};

/// Stamping of hidden widgets into cells: a button or frame that is never shown, and whose look
/// comes from the application's style sheet by its object name, is painted where a delegate wants
/// it. GUI thread.
class VELLUM_EXPORT StyleDelegateComFun
{
public:
    /// Draws \a button into \a option's rectangle in \a option's state; a twin that was never
    /// polished is polished first. A CusSvgPushButton paints its layers, any other button is drawn
    /// by \a style. A twin takes 2,048 pixels each way at most. A null pointer among the first four
    /// draws nothing.
    static void drawSvgBtn(QPainter *painter, QStyleOptionButton *option, QPushButton *button,
                           QStyle *style, CusSvgPushButton::DrawStype drawType);

    /// Draws the ground and border that a style sheet gives \a widget, usually a hidden QFrame,
    /// into \a rect. A null \a style is the application's; a null painter or widget draws nothing.
    static void paintBoundRect(QPainter *painter, const QRect &rect, QStyle::State state,
                               QWidget *widget, QStyle *style);
};

/// Places a part of \a size in \a cell by \a mode (a DelegateIconPosType): centred, \a margin
/// pixels from the left or right edge, or at \a point, which counts from the cell's upper left
/// corner and is pulled back so that the part ends inside the cell. A part that is wider than the
/// cell takes the cell's width; one whose margins don't fit is centred. False, with \a out
/// untouched, for an invalid cell or an unknown mode.
VELLUM_EXPORT bool calcItemPartRect(const QRect &cell, int mode, const QSize &size, int margin,
                                    QRect &out, const QPoint &point = QPoint());
