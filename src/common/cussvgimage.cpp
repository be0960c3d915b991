#include "common/cussvgimage.h"

#include "common/cssrules.h"
#include "common/safeint.h"
#include "common/svgrenderer.h"
#include "common/svgscan.h"
#include "data/xmlfile.h"

#include <QFile>
#include <QPainter>
#include <QSet>

#include <optional>

namespace {

constexpr int kMaxPixmapSide = 32767;
constexpr qint64 kMaxPixmapArea = qint64(1) << 26;

QString fillName()
{
    return QStringLiteral("fill");
}

QString opacityName()
{
    return QStringLiteral("opacity");
}

QString styleTag()
{
    return QStringLiteral("style");
}

const QSet<QString> &shapeTags()
{
    static const QSet<QString> tags = {QStringLiteral("path"),    QStringLiteral("circle"),
                                       QStringLiteral("polygon"), QStringLiteral("rect"),
                                       QStringLiteral("ellipse"), QStringLiteral("line"),
                                       QStringLiteral("polyline")};
    return tags;
}

QColor authoredColor(const QString &fill, const QString &opacity)
{
    if (!fill.isEmpty() && !opacity.isEmpty())
        return QColor();
    QColor color(fill);
    if (!color.isValid())
        color = QColor(0, 0, 0, 255);
    if (!opacity.isEmpty())
        color.setAlpha(vellum::toInt(double(opacity.toFloat() * 255.0F), 0, 255));
    return color;
}

/// One decimal, and empty for an opaque colour, which needs no opacity.
QString opacityText(const QColor &color)
{
    if (color.alpha() == 255)
        return QString();
    return QString::number(double(float(color.alpha() / 255.0)), 'f', 1);
}

/// Whether \a css would end a CDATA section, a comment or an instruction that holds it. The colons
/// that the rules lose can join such an end, and what follows would become markup.
bool endsItsNode(const QString &css)
{
    return css.contains(QLatin1String("]]>")) || css.contains(QLatin1String("-->"))
        || css.contains(QLatin1String("?>"));
}

QString firstValue(const QList<CSSItem> &rules, const QString &property)
{
    for (const CSSItem &rule : rules) {
        QString value = rule.attributes.value(property);
        if (!value.isEmpty())
            return value;
    }
    return QString();
}

} // namespace

struct CusSvgImage::Private
{
    QString svgFile;
    std::shared_ptr<XmlFile> document;
    std::unique_ptr<QSvgRenderer> renderer;
    std::optional<QColor> styleDefaultColor;
    std::optional<QColor> attrDefaultColor;
    QList<CSSItem> cssItems;
    QColor fillColor;
    bool colorsKnown = false;
    std::optional<bool> renderable;

    void discoverColors();
    bool applyTint(const QColor &tint);
    QString tintedCss(const QColor &color);
    QByteArray text();
};

/// Finds where the file keeps its colour. The colours themselves only choose that place.
void CusSvgImage::Private::discoverColors()
{
    if (colorsKnown)
        return;
    colorsKnown = true;
    cssItems = vellum::parseCssRules(document->getElementValue(styleTag()));
    if (!cssItems.isEmpty()) {
        const QColor color =
            authoredColor(firstValue(cssItems, fillName()), firstValue(cssItems, opacityName()));
        // A block that states both keeps them; then only the shapes are tinted.
        if (color.isValid())
            styleDefaultColor = color;
    }
    const QStringList values =
        document->getEleAttributeValue(shapeTags(), {fillName(), opacityName()});
    if (values.size() == 2)
        attrDefaultColor = authoredColor(values.at(0), values.at(1));
}

bool CusSvgImage::Private::applyTint(const QColor &tint)
{
    // Invalid colors may differ from each other and have an alpha; here they are all the same.
    const QColor color = tint.isValid() ? tint : QColor();
    if (color == fillColor || !document)
        return false;
    discoverColors();
    fillColor = color;
    if (styleDefaultColor) {
        const QString css = tintedCss(color);
        if (endsItsNode(css))
            renderable = false;
        document->setElementValue(styleTag(), css);
        if (attrDefaultColor)
            return true;
    }
    const QString opacity = opacityText(color);
    if (opacity.isEmpty())
        document->removeAttributeValue(shapeTags(), {opacityName()});
    else
        document->setEleAttributeValue(shapeTags(), opacityName(), opacity);
    // Overwrites "none" as well, unlike in a style block: a shape that isn't filled is part of a
    // monochrome icon only by mistake.
    document->setEleAttributeValue(shapeTags(), fillName(), color.name());
    return true;
}

/// Rewrites the rules for \a color; the next tint starts from them.
QString CusSvgImage::Private::tintedCss(const QColor &color)
{
    const QString opacity = opacityText(color);
    const QString none = QStringLiteral("none");
    for (CSSItem &rule : cssItems) {
        if (opacity.isEmpty())
            rule.attributes.remove(opacityName());
        else if (rule.attributes.value(opacityName()) != none)
            rule.attributes.insert(opacityName(), opacity);
        if (rule.attributes.value(fillName()) != none)
            rule.attributes.insert(fillName(), color.name());
    }
    return vellum::cssText(cssItems);
}

/// What a renderer may be given. A tint changes colours only, so the first answer holds.
QByteArray CusSvgImage::Private::text()
{
    if (!document || !renderable.value_or(true))
        return QByteArray();
    const QByteArray bytes = document->toByteArray();
    if (!renderable)
        renderable = vellum::isRenderableSvg(bytes);
    return *renderable ? bytes : QByteArray();
}

CusSvgImage::CusSvgImage(QObject * /*parent*/)
    : d(std::make_unique<Private>())
{
}

CusSvgImage::CusSvgImage(const QString &file, QObject *parent)
    : CusSvgImage(parent)
{
    load(file);
}

CusSvgImage::~CusSvgImage() = default;

bool CusSvgImage::load(const QString &file)
{
    *d = Private();
    d->svgFile = file;
    if (!file.isEmpty())
        d->document = std::make_shared<XmlFile>(file);
    return true;
}

void CusSvgImage::setFillColor(const QColor &color)
{
    if (d->applyTint(color))
        d->renderer.reset();
}

QByteArray CusSvgImage::getFillColorByteArray(const QColor &color) const
{
    d->applyTint(color);
    return d->text();
}

void CusSvgImage::paintSvgImage(QPainter *painter, const QRect &rect) const
{
    if (!d->renderer && d->document)
        d->renderer = vellum::makeSvgRenderer(d->text());
    // For an empty rectangle the renderer would take the whole device.
    if (!d->renderer || rect.isEmpty() || !painter || !painter->isActive())
        return;
    painter->setRenderHints(QPainter::SmoothPixmapTransform | QPainter::Antialiasing);
    d->renderer->render(painter, QRectF(rect));
}

QString CusSvgImage::svgFile() const
{
    return d->svgFile;
}

QPixmap CusSvgImage::svgToPixmap(const QString &file, const QSize &size, const QColor &color)
{
    // A pixmap too large reports not null although it was never allocated, and painting on it
    // warns; so the size is judged first.
    const bool fits = !size.isEmpty() && size.width() <= kMaxPixmapSide
        && size.height() <= kMaxPixmapSide
        && qint64(size.width()) * size.height() <= kMaxPixmapArea;
    if (!fits || !QFile::exists(file))
        return QPixmap();
    CusSvgImage image(file);
    if (color.isValid())
        image.setFillColor(color);
    QPixmap pixmap(size);
    pixmap.fill(Qt::transparent);
    QPainter painter(&pixmap);
    image.paintSvgImage(&painter, QRect(QPoint(0, 0), size));
    painter.end();
    return pixmap;
}
