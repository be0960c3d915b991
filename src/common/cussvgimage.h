#pragma once

#include "vellum_export.h"

#include <QColor>
#include <QObject>
#include <QPixmap>

#include <memory>

class QPainter;

/// A monochrome SVG file that is recoloured in memory.
///
/// The tint is written where the file keeps its colour: in its style block, in the attributes
/// "fill" and "opacity" of its shapes (path, circle, polygon, rect, ellipse, line, polyline), or in
/// both. Inline styles, strokes, groups and text keep their colours. The file is read by load() and
/// parsed at the first tint or paint; after that it is not touched again.
///
/// A missing or malformed file paints nothing, and so does one that would crash or stall the
/// renderer: references that form a cycle or multiply, pictures and style sheets in other files,
/// dash patterns far too fine, and what exceeds the limits of CusDomDocument. Nothing is reported.
/// For the GUI thread only.
class VELLUM_EXPORT CusSvgImage : public QObject
{
public:
    /// An empty image. \a parent is ignored: an image belongs to the object that made it, and goes
    /// with that.
    explicit CusSvgImage(QObject *parent = nullptr);
    explicit CusSvgImage(const QString &file, QObject *parent = nullptr);
    ~CusSvgImage() override;

    /// Drops everything, the tint too, and takes \a file; an empty name leaves an empty image.
    /// Always true, also for a file that can't be read.
    bool load(const QString &file);

    /// Tints the document and, if that changed it, drops the renderer of paintSvgImage(). The
    /// present tint again changes nothing. An invalid color leaves a file that was never tinted as
    /// authored, and later counts as opaque black. Opacity has one decimal.
    void setFillColor(const QColor &color);

    /// Tints the document like setFillColor(), but keeps the renderer, and gives the document's
    /// text. Empty if nothing can be shown: no file, no readable file, or one that is refused. With
    /// an invalid color on a fresh image it is the text as authored; where a tint gives the same
    /// text, the file keeps its own colours.
    QByteArray getFillColorByteArray(const QColor &color) const;

    /// Draws the image into \a rect, without keeping its aspect ratio, and leaves \a painter with
    /// antialiasing and smooth pixmaps on. An empty \a rect draws nothing. The first call after a
    /// change builds the renderer, also if \a painter is null.
    void paintSvgImage(QPainter *painter, const QRect &rect) const;

    QString svgFile() const;

    /// \a file in \a color as a pixmap of \a size pixels; an invalid color leaves the colours as
    /// authored. Parses the file at every call. A null pixmap for a file that doesn't exist and for
    /// a size that is empty, wider or higher than 32,767 or larger than 2^26 pixels; a transparent
    /// one for a file that can't be shown.
    static QPixmap svgToPixmap(const QString &file, const QSize &size, const QColor &color);

private:
    struct Private;
    const std::unique_ptr<Private> d;
};
