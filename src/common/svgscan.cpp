#include "common/svgscan.h"

#include "data/xmlscan.h"

#include <QBuffer>
#include <QHash>
#include <QImageReader>
#include <QRegularExpression>
#include <QSet>
#include <QVector>
#include <QXmlStreamReader>

#include <algorithm>
#include <array>
#include <limits>

namespace {

constexpr int kOrdinarySize = 256 * 1024;
constexpr int kOrdinaryTags = 256;
constexpr int kMaxHeight = 512;
constexpr qint64 kFreeWeight = 65536;
constexpr qint64 kMaxWeightPerElement = 16;
constexpr int kMaxStops = 512;
constexpr int kMaxGradientLinks = 8192;
constexpr qint64 kMaxRuleMatches = qint64(1) << 23;
constexpr qint64 kMaxPictureArea = qint64(1) << 24;
/// Bytes of dashed outlines per dash, the dash as a share of the image; at this value about a
/// second.
constexpr double kMaxDashCost = 1e7;
/// What an outline without points counts, as that of a rectangle.
constexpr int kPlainOutline = 32;

bool isOrdinary(const QByteArray &svg)
{
    static const std::array<const char *, 7> words = {
        "<use", ":use", "<image", ":image", "dasharray", "\\", "<?xml-stylesheet"};
    return svg.size() <= kOrdinarySize && svg.count('<') <= kOrdinaryTags
        && std::none_of(words.begin(), words.end(),
                        [&svg](const char *word) { return svg.contains(word); });
}

/// Whether \a style spells ASCII by escapes, so that no search finds its properties. The names of
/// fonts are often escaped as well, but beyond ASCII.
bool hidesNames(const QString &style)
{
    static const QRegularExpression pattern(
        QStringLiteral("\\\\(?:0000[0-7]|0{0,4}[0-7]?[0-9a-f](?![0-9a-f])|[g-z-])"),
        QRegularExpression::CaseInsensitiveOption);
    return style.contains(QLatin1Char('\\')) && pattern.match(style).hasMatch();
}

class SvgScan
{
public:
    explicit SvgScan(const QByteArray &svg)
        : m_svg(svg)
        , m_reader(svg)
    {
    }

    bool isRenderable();

private:
    /// What is drawn by an element that has an id: its elements without one, the parts that have
    /// one of their own, and what its `use` elements name.
    struct Group
    {
        int elements = 0;
        QSet<int> parts;
        QStringList uses;
        qint64 weight = -1;
        int height = 0;
        bool open = false;
    };

    bool startElement();
    bool styleText(const QString &text);
    int enterGroup(const QString &id);
    void measure(const QXmlStreamAttributes &attributes);
    void measureDashes(const QString &name, const QXmlStreamAttributes &attributes);
    bool gradient(const QString &name, const QString &link);
    bool picture(const QString &link);
    int groupOf(const QString &id);
    bool weigh(int index, int depth);
    bool dashesAreCoarse() const;

    const QByteArray &m_svg;
    QXmlStreamReader m_reader;
    QVector<Group> m_groups = QVector<Group>(1);
    QHash<QString, int> m_ids;
    QVector<int> m_path = {0};
    int m_elements = 0;
    int m_stops = 0;
    int m_gradientLinks = 0;
    qint64 m_rules = 0;
    qint64 m_pictureArea = 0;
    bool m_hasStyle = false;
    double m_extent = 0.0;
    int m_dashedDepth = 0;
    bool m_allDashed = false;
    qint64 m_outline = 0;
    qint64 m_dashedOutline = 0;
};

bool SvgScan::isRenderable()
{
    // A malformed rest is nothing to judge: the renderer stops there as well.
    while (!m_reader.atEnd()) {
        const QXmlStreamReader::TokenType token = m_reader.readNext();
        if (token == QXmlStreamReader::StartElement) {
            if (!startElement())
                return false;
        } else if (token == QXmlStreamReader::EndElement) {
            m_path.removeLast();
            m_dashedDepth = std::max(0, m_dashedDepth - 1);
        } else if (token == QXmlStreamReader::Characters && m_hasStyle) {
            if (!styleText(m_reader.text().toString()))
                return false;
        } else if (token == QXmlStreamReader::ProcessingInstruction
                   && m_reader.processingInstructionTarget() == QLatin1String("xml-stylesheet")) {
            return false;
        }
    }
    return m_rules * m_elements <= kMaxRuleMatches && weigh(0, 0)
        && m_groups.at(0).weight <= kFreeWeight + kMaxWeightPerElement * m_elements
        && dashesAreCoarse();
}

bool SvgScan::startElement()
{
    const QString name = m_reader.name().toString();
    const QXmlStreamAttributes attributes = m_reader.attributes();
    if (m_elements++ == 0)
        measure(attributes);
    measureDashes(name, attributes);
    const int group = enterGroup(attributes.value(QLatin1String("id")).toString());
    m_hasStyle = m_hasStyle || name == QLatin1String("style");
    if (hidesNames(attributes.value(QLatin1String("style")).toString()))
        return false;
    QString link = attributes.value(QLatin1String("xlink:href")).toString();
    // The renderer knows no other name for the link of a picture.
    if (name == QLatin1String("image"))
        return picture(link.trimmed());
    if (link.isEmpty())
        link = attributes.value(QLatin1String("href")).toString();
    if (name == QLatin1String("use"))
        m_groups[group].uses.append(link.mid(1));
    return gradient(name, link);
}

/// Any text behind the start of a style element counts: the renderer takes what follows an element
/// inside a style for rules as well.
bool SvgScan::styleText(const QString &text)
{
    m_rules += text.count(QLatin1Char('{')) + text.count(QLatin1Char(','));
    m_allDashed = m_allDashed || text.contains(QLatin1String("dasharray"));
    return !hidesNames(text);
}

/// The group that an element with \a id, which may be empty, belongs to.
int SvgScan::enterGroup(const QString &id)
{
    int group = m_path.last();
    if (!id.isEmpty()) {
        const int part = groupOf(id);
        // An id that an ancestor has already is a slip, not a reference.
        if (!m_path.contains(part))
            m_groups[group].parts.insert(part);
        group = part;
    }
    ++m_groups[group].elements;
    m_path.append(group);
    return group;
}

void SvgScan::measure(const QXmlStreamAttributes &attributes)
{
    const QStringList box = attributes.value(QLatin1String("viewBox"))
                                .toString()
                                .replace(QLatin1Char(','), QLatin1Char(' '))
                                .split(QLatin1Char(' '), Qt::SkipEmptyParts);
    if (box.size() == 4)
        m_extent = std::max(box.at(2).toDouble(), box.at(3).toDouble());
}

/// Sums up the outlines, and those that are dashed by an attribute of their own or of an ancestor.
/// A style block may dash any, and so may a dashed reference.
void SvgScan::measureDashes(const QString &name, const QXmlStreamAttributes &attributes)
{
    const bool dashed = attributes.hasAttribute(QLatin1String("stroke-dasharray"))
        || attributes.value(QLatin1String("style")).contains(QLatin1String("dasharray"));
    if (dashed || m_dashedDepth > 0)
        ++m_dashedDepth;
    m_allDashed = m_allDashed || (m_dashedDepth > 0 && name == QLatin1String("use"));
    const qint64 outline = kPlainOutline + attributes.value(QLatin1String("d")).size()
        + attributes.value(QLatin1String("points")).size();
    m_outline += outline;
    m_dashedOutline += m_dashedDepth > 0 ? outline : 0;
}

bool SvgScan::gradient(const QString &name, const QString &link)
{
    if (name == QLatin1String("stop"))
        return ++m_stops <= kMaxStops;
    if (!name.endsWith(QLatin1String("Gradient")))
        return true;
    m_stops = 0;
    return link.isEmpty() || ++m_gradientLinks <= kMaxGradientLinks;
}

/// Only PNG and JPEG inside the file are let through: a name may lead to a pipe or a device, and
/// another SVG, even in a data link, would be rendered unseen.
bool SvgScan::picture(const QString &link)
{
    if (link.isEmpty())
        return true;
    // The last mark counts for the renderer.
    const int data = link.lastIndexOf(QLatin1String("base64,"));
    if (!link.startsWith(QLatin1String("data:")) || data < 0)
        return false;
    QByteArray bytes = QByteArray::fromBase64(link.mid(data + 7).toLatin1());
    QBuffer buffer(&bytes);
    QImageReader reader(&buffer);
    const QByteArray format = reader.format();
    const QSize size = reader.size();
    m_pictureArea += qint64(size.width()) * size.height();
    return (format == "png" || format == "jpeg") && m_pictureArea <= kMaxPictureArea;
}

/// Elements that share an id count as one that draws them all.
int SvgScan::groupOf(const QString &id)
{
    const auto known = m_ids.constFind(id);
    if (known != m_ids.cend())
        return *known;
    m_groups.append(Group());
    m_ids.insert(id, m_groups.size() - 1);
    return m_groups.size() - 1;
}

/// Fills in weight, the number of elements drawn, and height, the nesting while they are drawn.
/// False for a cycle and for too much.
bool SvgScan::weigh(int index, int depth)
{
    Group &group = m_groups[index];
    if (group.open || depth > kMaxHeight)
        return false;
    if (group.weight >= 0)
        return true;
    group.open = true;
    QVector<int> drawn(group.parts.cbegin(), group.parts.cend());
    for (const QString &id : qAsConst(group.uses)) {
        const auto target = m_ids.constFind(id);
        if (target != m_ids.cend())
            drawn.append(*target);
    }
    qint64 weight = group.elements;
    for (int part : qAsConst(drawn)) {
        if (!weigh(part, depth + 1))
            return false;
        weight += m_groups.at(part).weight;
        group.height = std::max(group.height, m_groups.at(part).height + 1);
        if (weight > kFreeWeight + kMaxWeightPerElement * m_elements || group.height > kMaxHeight)
            return false;
    }
    group.weight = weight;
    group.open = false;
    return true;
}

bool SvgScan::dashesAreCoarse() const
{
    if (!m_svg.contains("dasharray"))
        return true;
    static const QRegularExpression pattern(
        QStringLiteral("stroke-dasharray\\s*[:=]\\s*[\"']?\\s*([0-9.][0-9.eE,+\\s-]*)"));
    static const QRegularExpression separator(QStringLiteral("[,\\s]+"));
    double finest = std::numeric_limits<double>::max();
    auto match = pattern.globalMatch(QString::fromUtf8(m_svg));
    while (match.hasNext()) {
        double sum = 0.0;
        const QStringList lengths = match.next().captured(1).split(separator, Qt::SkipEmptyParts);
        for (const QString &length : lengths)
            sum += length.toDouble();
        if (sum > 0.0)
            finest = std::min(finest, sum);
    }
    const double extent = m_extent > 0.0 ? m_extent : 100.0;
    return double(m_allDashed ? m_outline : m_dashedOutline) * extent / finest <= kMaxDashCost;
}

} // namespace

namespace vellum {

bool isRenderableSvg(const QByteArray &svg)
{
    return hasAsciiEncoding(svg) && (isOrdinary(svg) || SvgScan(svg).isRenderable());
}

} // namespace vellum
