#include "support/render.h"

#include <QPainter>
#include <QWidget>

namespace {

bool near(QRgb a, QRgb b, int tolerance)
{
    return qAbs(qRed(a) - qRed(b)) <= tolerance && qAbs(qGreen(a) - qGreen(b)) <= tolerance
        && qAbs(qBlue(a) - qBlue(b)) <= tolerance;
}

template <typename Visit>
void forEachPixel(const QImage &image, Visit visit)
{
    const QImage rgb = image.convertToFormat(QImage::Format_RGB32);
    for (int y = 0; y < rgb.height(); ++y) {
        const auto *line = reinterpret_cast<const QRgb *>(rgb.constScanLine(y));
        for (int x = 0; x < rgb.width(); ++x)
            visit(x, y, line[x]);
    }
}

QRect extentWhere(const QImage &image, const QColor &color, int tolerance, bool matching)
{
    QRect extent;
    forEachPixel(image, [&](int x, int y, QRgb pixel) {
        if (near(pixel, color.rgb(), tolerance) == matching)
            extent |= QRect(x, y, 1, 1);
    });
    return extent;
}

} // namespace

namespace TestKit {

QImage renderAt(QWidget *widget, qreal ratio)
{
    QImage image((QSizeF(widget->size()) * ratio).toSize(), QImage::Format_ARGB32_Premultiplied);
    image.setDevicePixelRatio(ratio);
    image.fill(unpainted);
    widget->render(&image, QPoint(), QRegion(), QWidget::DrawChildren);
    return image;
}

QRect extentOf(const QImage &image, const QColor &color, int tolerance)
{
    return extentWhere(image, color, tolerance, true);
}

int countOf(const QImage &image, const QColor &color, int tolerance)
{
    int count = 0;
    forEachPixel(image, [&](int, int, QRgb pixel) {
        if (near(pixel, color.rgb(), tolerance))
            ++count;
    });
    return count;
}

QRect inkExtent(const QImage &image, const QColor &ground, int tolerance)
{
    return extentWhere(image, ground, tolerance, false);
}

} // namespace TestKit
