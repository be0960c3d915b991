#include "iconsurvey.h"

#include <Vellum/CusSvgImage>

#include <QDir>
#include <QElapsedTimer>
#include <QFileInfo>
#include <QImage>
#include <QMap>
#include <QPainter>
#include <QSvgRenderer>
#include <QTextStream>
#include <QXmlStreamReader>

#include <algorithm>
#include <cmath>
#include <numeric>

namespace {

constexpr int kJudgedSize = 24;
constexpr qint64 kVeryLarge = qint64(100) * 1024;
constexpr int kSolidAlpha = 128;
constexpr int kColorTolerance = 24;
constexpr int kExamples = 5;
constexpr double kFloodedShare = 0.9;
constexpr double kUnfloodedShare = 0.75;
constexpr QRgb kSurveyTint = 0xffff00ff;

int warnings = 0;

void countWarning(QtMsgType /*type*/, const QMessageLogContext & /*context*/, const QString &)
{
    ++warnings;
}

QString identityOf(const QFileInfo &info)
{
    const QString canonical = info.canonicalFilePath();
    return canonical.isEmpty() ? info.absoluteFilePath() : canonical;
}

/// A null image if \a svg is no picture.
QImage picture(const QByteArray &svg)
{
    QSvgRenderer renderer;
    if (svg.isEmpty() || !renderer.load(svg))
        return QImage();
    QImage image(kJudgedSize, kJudgedSize, QImage::Format_ARGB32);
    image.fill(Qt::transparent);
    QPainter painter(&image);
    painter.setRenderHint(QPainter::Antialiasing);
    renderer.render(&painter, QRectF(0, 0, kJudgedSize, kJudgedSize));
    return image;
}

struct Ink
{
    int any = 0;
    int solid = 0;
    int inTint = 0;
    bool colorful = false;
};

bool isNear(QRgb pixel, QRgb tint)
{
    return std::abs(qRed(pixel) - qRed(tint)) <= kColorTolerance
        && std::abs(qGreen(pixel) - qGreen(tint)) <= kColorTolerance
        && std::abs(qBlue(pixel) - qBlue(tint)) <= kColorTolerance;
}

Ink inkOf(const QImage &image, QRgb tint)
{
    Ink ink;
    QRgb first = 0;
    for (int y = 0; y < image.height(); ++y) {
        const auto *line = reinterpret_cast<const QRgb *>(image.constScanLine(y));
        for (int x = 0; x < image.width(); ++x) {
            const QRgb pixel = line[x];
            ink.any += qAlpha(pixel) > 0 ? 1 : 0;
            if (qAlpha(pixel) < kSolidAlpha)
                continue;
            first = ink.solid == 0 ? pixel : first;
            ++ink.solid;
            ink.colorful |= !isNear(pixel, first);
            ink.inTint += isNear(pixel, tint) ? 1 : 0;
        }
    }
    return ink;
}

double shareOf(int pixels)
{
    return double(pixels) / (kJudgedSize * kJudgedSize);
}

bool namesGradient(const QStringRef &tag)
{
    return tag == QLatin1String("linearGradient") || tag == QLatin1String("radialGradient");
}

void readElement(const QXmlStreamReader &xml, int depth, int *styles, IconVerdict *verdict)
{
    auto &has = verdict->features;
    if (xml.name() == QLatin1String("style")) {
        ++*styles;
        has[IconVerdict::StyleBlock] = true;
        has[IconVerdict::SeveralStyleBlocks] = *styles > 1;
        has[IconVerdict::ScopedStyleBlock] |= depth > 2;
    }
    has[IconVerdict::Gradient] |= namesGradient(xml.name());
    has[IconVerdict::EmbeddedImage] |= xml.name() == QLatin1String("image");
    has[IconVerdict::Script] |= xml.name() == QLatin1String("script");
    const QXmlStreamAttributes attributes = xml.attributes();
    for (const QXmlStreamAttribute &attribute : attributes) {
        const bool isStyle = attribute.name() == QLatin1String("style");
        has[IconVerdict::InlineStyle] |= isStyle;
        has[IconVerdict::CurrentColor] |= attribute.value().contains(QLatin1String("currentColor"));
        has[IconVerdict::Stroke] |= (attribute.name() == QLatin1String("stroke")
                                     && attribute.value() != QLatin1String("none"))
            || (isStyle && attribute.value().contains(QLatin1String("stroke:"))
                && !attribute.value().contains(QLatin1String("stroke:none")));
    }
}

void readFeatures(const QFileInfo &info, IconVerdict *verdict)
{
    verdict->features[IconVerdict::SymbolicLink] = info.isSymLink();
    QFile file(info.filePath());
    // Opening a pipe or a device could wait for ever.
    if (!info.isFile() || !file.open(QIODevice::ReadOnly))
        return;
    verdict->features[IconVerdict::VeryLarge] = file.size() > kVeryLarge;
    QXmlStreamReader xml(&file);
    int depth = 0;
    int styles = 0;
    while (!xml.atEnd()) {
        const auto token = xml.readNext();
        if (token == QXmlStreamReader::StartElement)
            readElement(xml, ++depth, &styles, verdict);
        else if (token == QXmlStreamReader::EndElement)
            --depth;
    }
    verdict->features[IconVerdict::BrokenXml] = xml.hasError();
}

QString outcomeName(int outcome)
{
    static const std::array<const char *, IconVerdict::OutcomeCount> names = {
        "tinted", "partly", "missed", "kept", "blank", "unreadable"};
    return QString::fromLatin1(names.at(size_t(outcome)));
}

QString featureName(int feature)
{
    static const std::array<const char *, IconVerdict::FeatureCount> names = {
        "symbolic link",  "style block",  "several style blocks", "style block inside a group",
        "gradient",       "currentColor", "inline style",         "stroke",
        "embedded image", "script",       "broken XML",           "over 100 kB"};
    return QString::fromLatin1(names.at(size_t(feature)));
}

int sumOf(const IconCounts::Outcomes &outcomes)
{
    return std::accumulate(outcomes.begin(), outcomes.end(), 0);
}

QString tableRow(const QString &name, const IconCounts::Outcomes &outcomes)
{
    QString row = name.leftJustified(28) + QString::number(sumOf(outcomes)).rightJustified(8);
    for (const int count : outcomes)
        row += QString::number(count).rightJustified(12);
    return row + QLatin1Char('\n');
}

/// Some files by name, of the kinds that one will want to look at.
class Remarkable
{
public:
    void add(const QString &file, const IconVerdict &verdict, qint64 time)
    {
        if (time > m_slowestTime || m_slowest.isEmpty()) {
            m_slowestTime = time;
            m_slowest = file;
        }
        if (verdict.flooded)
            keep(QStringLiteral("nearly solid"), file);
        if (verdict.outcome > IconVerdict::PartlyTinted)
            keep(outcomeName(verdict.outcome), file);
    }

    QString text() const
    {
        QString lines;
        for (auto it = m_examples.begin(); it != m_examples.end(); ++it) {
            for (const QString &file : it.value())
                lines += it.key() + QStringLiteral(": ") + file + QLatin1Char('\n');
        }
        return lines
            + QStringLiteral("slowest: %1 ms, %2\n").arg(QString::number(m_slowestTime), m_slowest);
    }

private:
    void keep(const QString &kind, const QString &file)
    {
        QStringList &files = m_examples[kind];
        if (files.size() < kExamples)
            files.append(file);
    }

    QMap<QString, QStringList> m_examples;
    QString m_slowest;
    qint64 m_slowestTime = 0;
};

} // namespace

IconWalker::IconWalker(const QString &folder)
    : m_pending(folder)
{
}

bool IconWalker::next(QStringList *files)
{
    if (m_pending.isEmpty())
        return false;
    const QDir dir(m_pending.takeLast());
    const QString identity = identityOf(QFileInfo(dir.path()));
    if (m_seen.contains(identity))
        return true;
    m_seen.insert(identity);
    // System names the links that lead nowhere.
    const QFileInfoList entries =
        dir.entryInfoList(QDir::Dirs | QDir::Files | QDir::System | QDir::NoDotAndDotDot,
                          QDir::Name | QDir::LocaleAware);
    QStringList folders;
    for (const QFileInfo &entry : entries) {
        if (entry.isDir())
            folders.prepend(entry.filePath());
        else if (entry.suffix().compare(QLatin1String("svg"), Qt::CaseInsensitive) == 0)
            files->append(entry.filePath());
    }
    m_pending += folders;
    return true;
}

IconVerdict judgeIcon(const QString &file, const QColor &tint, bool withFeatures)
{
    IconVerdict verdict;
    const QFileInfo info(file);
    if (withFeatures)
        readFeatures(info, &verdict);
    if (!info.isFile() || !info.isReadable())
        return verdict;
    const CusSvgImage image(file);
    const QImage before = picture(image.getFillColorByteArray(QColor()));
    const QImage after = tint.isValid() ? picture(image.getFillColorByteArray(tint)) : before;
    if (before.isNull() || after.isNull())
        return verdict;

    const Ink inkBefore = inkOf(before, tint.rgb());
    const Ink inkAfter = inkOf(after, tint.rgb());
    verdict.flattened = inkBefore.colorful && !inkAfter.colorful;
    verdict.appeared = inkBefore.any == 0 && inkAfter.any > 0;
    verdict.vanished = inkBefore.any > 0 && inkAfter.any == 0;
    verdict.flooded =
        shareOf(inkAfter.solid) >= kFloodedShare && shareOf(inkBefore.solid) < kUnfloodedShare;
    if (inkBefore.any == 0 && inkAfter.any == 0)
        verdict.outcome = IconVerdict::Blank;
    else if (before == after)
        verdict.outcome = IconVerdict::Kept;
    else if (inkAfter.inTint == 0 && inkAfter.solid > 0)
        verdict.outcome = IconVerdict::Missed;
    else if (inkAfter.inTint == inkAfter.solid)
        verdict.outcome = IconVerdict::Tinted;
    else
        verdict.outcome = IconVerdict::PartlyTinted;
    return verdict;
}

void IconCounts::add(const IconVerdict &verdict)
{
    ++outcomes.at(verdict.outcome);
    for (size_t i = 0; i < features.size(); ++i)
        features.at(i).at(verdict.outcome) += verdict.features.at(i) ? 1 : 0;
    flooded += verdict.flooded ? 1 : 0;
    flattened += verdict.flattened ? 1 : 0;
    appeared += verdict.appeared ? 1 : 0;
    vanished += verdict.vanished ? 1 : 0;
}

int IconCounts::total() const
{
    return sumOf(outcomes);
}

QString IconCounts::line() const
{
    const QLocale locale(QLocale::English);
    const int changed = outcomes[IconVerdict::Tinted] + outcomes[IconVerdict::PartlyTinted]
        + outcomes[IconVerdict::Missed];
    const int kept = outcomes[IconVerdict::Kept] + outcomes[IconVerdict::Blank];
    return QStringLiteral("%1 files: %2 changed, %3 kept their colours, %4 could not be read")
        .arg(locale.toString(total()), locale.toString(changed), locale.toString(kept),
             locale.toString(outcomes[IconVerdict::Unreadable]));
}

QString IconCounts::table() const
{
    QString text = QString(28, QLatin1Char(' ')) + QStringLiteral("   files");
    for (int i = 0; i < IconVerdict::OutcomeCount; ++i)
        text += outcomeName(i).rightJustified(12);
    text += QLatin1Char('\n') + tableRow(QStringLiteral("all"), outcomes);
    for (int i = 0; i < IconVerdict::FeatureCount; ++i)
        text += tableRow(featureName(i), features.at(size_t(i)));
    text += QStringLiteral("of several colours, now one: %1\n").arg(flattened);
    text += QStringLiteral("nearly solid after the tint: %1\n").arg(flooded);
    text += QStringLiteral("nothing to see before the tint: %1, after it: %2\n")
                .arg(appeared)
                .arg(vanished);
    return text;
}

int runIconSurvey(const QString &folder)
{
    QTextStream out(stdout);
    if (!QFileInfo(folder).isDir()) {
        out << "No such folder: " << folder << '\n';
        return 1;
    }
    QStringList files;
    IconWalker walker(folder);
    while (walker.next(&files)) { }
    warnings = 0;
    const QtMessageHandler earlier = qInstallMessageHandler(countWarning);
    IconCounts counts;
    Remarkable remarkable;
    for (const QString &file : qAsConst(files)) {
        QElapsedTimer clock;
        clock.start();
        const IconVerdict verdict = judgeIcon(file, QColor(kSurveyTint), true);
        counts.add(verdict);
        remarkable.add(file, verdict, clock.elapsed());
    }
    qInstallMessageHandler(earlier);
    out << counts.line() << "\n\n" << counts.table();
    out << "warnings of the renderer: " << warnings << '\n';
    out << remarkable.text();
    return 0;
}
