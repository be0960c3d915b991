#include "common/svgimageinfo.h"

#include "common/cussvgimage.h"
#include "common/svgrenderer.h"

struct SvgImageInfo::Private
{
    QString svgImage;
    QColor svgColor;
    std::unique_ptr<QSvgRenderer> render;
};

SvgImageInfo::SvgImageInfo()
    : d(std::make_shared<Private>())
{
}

SvgImageInfo::~SvgImageInfo() = default;
SvgImageInfo::SvgImageInfo(const SvgImageInfo &other) = default;
SvgImageInfo &SvgImageInfo::operator=(const SvgImageInfo &other) = default;

QString SvgImageInfo::svgImage() const
{
    return d->svgImage;
}

void SvgImageInfo::setSvgImage(const QString &image)
{
    if (image == d->svgImage)
        return;
    clean();
    d->svgImage = image;
}

QColor SvgImageInfo::svgColor() const
{
    return d->svgColor;
}

void SvgImageInfo::setSvgColor(const QColor &color)
{
    if (color == d->svgColor)
        return;
    clean();
    d->svgColor = color;
}

QSvgRenderer *SvgImageInfo::render() const
{
    return d->render.get();
}

void SvgImageInfo::clean()
{
    d->render.reset();
}

void SvgImageInfo::init(CusSvgImage *image)
{
    const bool hasOwnImage = !d->svgImage.isEmpty();
    if (d->render || (!hasOwnImage && !d->svgColor.isValid()))
        return;
    if (!hasOwnImage && (!image || image->svgFile().isEmpty()))
        return;
    const bool shared = !hasOwnImage || (image && image->svgFile() == d->svgImage);
    const QByteArray text = shared ? image->getFillColorByteArray(d->svgColor)
                                   : CusSvgImage(d->svgImage).getFillColorByteArray(d->svgColor);
    d->render = vellum::makeSvgRenderer(text);
}
