#pragma once

#include "vellum_export.h"

#include <QColor>
#include <QString>

#include <memory>

class CusSvgImage;
class QSvgRenderer;

/// An SVG file, a colour, and the renderer of that file in that colour.
///
/// The renderer is built by init() and kept until the file or the colour changes, so that painting
/// only replays it. For the GUI thread only. A copy shares file, colour and renderer with its
/// original.
class VELLUM_EXPORT SvgImageInfo
{
public:
    /// Without a file, with an invalid colour.
    SvgImageInfo();
    ~SvgImageInfo();
    SvgImageInfo(const SvgImageInfo &other);
    SvgImageInfo &operator=(const SvgImageInfo &other);

    QString svgImage() const;
    /// Drops the renderer if \a image differs from the present file.
    void setSvgImage(const QString &image);

    QColor svgColor() const;
    /// Drops the renderer if \a color differs from the present colour.
    void setSvgColor(const QColor &color);

    /// The renderer, or null. It stays owned by this object. It is not valid (isValid()) if the
    /// file couldn't be shown; such a one is kept too, so that a bad file is not tried again.
    QSvgRenderer *render() const;

    /// Drops the renderer; file and colour stay.
    void clean();

    /// Builds the renderer unless there is one.
    ///
    /// The source is the own file; without one it is \a image, which may be null and stays the
    /// caller's. \a image is also used where it holds the own file, which saves parsing it again,
    /// and then keeps this colour as its tint. Nothing happens if there is no source, or neither a
    /// file nor a valid colour of its own.
    void init(CusSvgImage *image);

private:
    struct Private;
    std::shared_ptr<Private> d;
};
