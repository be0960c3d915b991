#pragma once

#include <QColor>
#include <QImage>
#include <QRect>
#include <QStringList>

#include <functional>

class QPaintDevice;
class QWidget;

namespace TestKit {

/// The colour that stands where a widget painted nothing.
inline const QColor unpainted{Qt::magenta};

/// \a widget drawn at device pixel ratio \a ratio on a ground of unpainted. Only what the widget
/// and its children draw themselves shows, not the window's background. Coordinates are device
/// pixels.
QImage renderAt(QWidget *widget, qreal ratio = 1.0);

/// The smallest rectangle that holds every pixel of \a color, each channel within \a tolerance; a
/// null rectangle without one.
QRect extentOf(const QImage &image, const QColor &color, int tolerance = 8);

/// How many pixels of \a image have \a color, each channel within \a tolerance.
int countOf(const QImage &image, const QColor &color, int tolerance = 8);

/// The smallest rectangle that holds every pixel that differs from \a ground.
QRect inkExtent(const QImage &image, const QColor &ground = unpainted, int tolerance = 8);

/// The texts that \a draw draws in \a color on a device of 1,000 pixels square.
QStringList drawnTexts(const std::function<void(QPaintDevice *)> &draw, const QColor &color);

} // namespace TestKit
