#include "common/cusuicommonfun.h"

#include <QPainter>
#include <QSvgRenderer>

#include <qrcodegen.hpp>

#include <string>

namespace {

constexpr int kBorderModules = 1;
/// Qt's SVG reader cuts a path off behind 32,767 elements; a row has at most 89 runs of five.
constexpr int kRowsOfPath = 64;
constexpr qint64 kMaxPixels = qint64(64) * 1024 * 1024;
/// Painting reaches no further; what lies behind would show memory that nobody has written.
constexpr int kMaxSide = 32767;
/// Digits, the densest text, at medium level in the largest symbol.
constexpr int kMaxCharacters = 5596;

/// One path for the dark modules of some rows, a run of them in a row at a time: neighbours drawn
/// one by one would show seams where a module is no whole number of pixels.
QByteArray darkModulesPath(const qrcodegen::QrCode &code, int firstRow, int endRow)
{
    QByteArray path;
    const int size = code.getSize();
    for (int y = firstRow; y < endRow; ++y) {
        int x = 0;
        while (x < size) {
            const int start = x;
            while (x < size && code.getModule(x, y))
                ++x;
            if (x > start)
                path += 'M' + QByteArray::number(start + kBorderModules) + ','
                    + QByteArray::number(y + kBorderModules) + 'h' + QByteArray::number(x - start)
                    + "v1h-" + QByteArray::number(x - start) + 'z';
            else
                ++x;
        }
    }
    return R"(<path d=")" + path + R"(" fill="#000000"/>)";
}

QByteArray toSvg(const qrcodegen::QrCode &code)
{
    const int size = code.getSize();
    const QByteArray edge = QByteArray::number(size + 2 * kBorderModules);
    // The ground reaches beyond the picture: an edge that only meets the last pixels would leave
    // them half covered, and nothing else fills them.
    const QByteArray ground = QByteArray::number(size + 2 * kBorderModules + 2);
    QByteArray svg = R"(<?xml version="1.0" encoding="UTF-8"?>)"
                     R"(<svg xmlns="http://www.w3.org/2000/svg" version="1.1" viewBox="0 0 )"
        + edge + ' ' + edge + R"(" stroke="none"><rect x="-1" y="-1" width=")" + ground
        + R"(" height=")" + ground + R"(" fill="#FFFFFF"/>)";
    // Each path takes the row above once more, which hides the seam between them.
    for (int row = 0; row < size; row += kRowsOfPath)
        svg += darkModulesPath(code, qMax(0, row - 1), qMin(size, row + kRowsOfPath));
    return svg + "</svg>";
}

} // namespace

QPixmap generateQRCode(const QString &text, const QSize &size)
{
    if (size.isEmpty() || qMax(size.width(), size.height()) > kMaxSide
        || qint64(size.width()) * size.height() > kMaxPixels || text.size() > kMaxCharacters)
        return {};
    QByteArray svg;
    try {
        const std::string utf8 = text.toStdString();
        svg = toSvg(qrcodegen::QrCode::encodeText(utf8.c_str(), qrcodegen::QrCode::Ecc::MEDIUM));
    } catch (const qrcodegen::data_too_long &) {
        return {};
    }
    QPixmap pixmap(size);
    QSvgRenderer renderer(svg);
    QPainter painter(&pixmap);
    renderer.render(&painter);
    return pixmap;
}
