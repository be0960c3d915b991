#include "support/render.h"

#include <QBuffer>
#include <QRegularExpression>
#include <QSvgGenerator>
#include <QWidget>

namespace {

bool near(QRgb a, QRgb b, int tolerance)
{
    return qAbs(qRed(a) - qRed(b)) <= tolerance && qAbs(qGreen(a) - qGreen(b)) <= tolerance
        && qAbs(qBlue(a) - qBlue(b)) <= tolerance;
}

/// Counts the pixels that are, or are not, near \a color, and widens \a extent by them.
int scan(const QImage &image, const QColor &color, int tolerance, bool wanted, QRect *extent)
{
    const QImage rgb = image.convertToFormat(QImage::Format_RGB32);
    int count = 0;
    for (int y = 0; y < rgb.height(); ++y) {
        const auto *line = reinterpret_cast<const QRgb *>(rgb.constScanLine(y));
        for (int x = 0; x < rgb.width(); ++x) {
            if (near(line[x], color.rgb(), tolerance) == wanted) {
                ++count;
                *extent |= QRect(x, y, 1, 1);
            }
        }
    }
    return count;
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
    QRect extent;
    scan(image, color, tolerance, true, &extent);
    return extent;
}

int countOf(const QImage &image, const QColor &color, int tolerance)
{
    QRect extent;
    return scan(image, color, tolerance, true, &extent);
}

QRect inkExtent(const QImage &image, const QColor &ground, int tolerance)
{
    QRect extent;
    scan(image, ground, tolerance, false, &extent);
    return extent;
}

QStringList drawnTexts(const std::function<void(QPaintDevice *)> &draw, const QColor &color)
{
    QBuffer svg;
    QSvgGenerator generator;
    generator.setOutputDevice(&svg);
    generator.setSize(QSize(1000, 1000));
    generator.setResolution(96);
    draw(&generator);
    const QRegularExpression text(
        QStringLiteral("<text fill=\"%1\"[^>]*>([^<]*)</text>").arg(color.name()));
    QStringList texts;
    for (auto it = text.globalMatch(QString::fromUtf8(svg.data())); it.hasNext();)
        texts.append(it.next().captured(1));
    return texts;
}

} // namespace TestKit
