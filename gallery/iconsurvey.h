#pragma once

#include <QColor>
#include <QSet>
#include <QString>
#include <QStringList>

#include <array>

/// The SVG files below a folder, one directory at a time, so that a page stays fluid meanwhile.
///
/// Links to files are listed as files, also those that lead nowhere. Links to directories are
/// followed, but a directory is read once however many ways lead to it, so loops end.
class IconWalker
{
public:
    explicit IconWalker(const QString &folder);

    /// Reads one more directory and appends its SVG files by name; false when none is left.
    bool next(QStringList *files);

private:
    QStringList m_pending;
    QSet<QString> m_seen;
};

/// What a tint did to one file, judged by its picture at 24 pixels.
struct IconVerdict
{
    enum Outcome
    {
        Tinted,       ///< all ink has the tint's colour
        PartlyTinted, ///< the picture changed, and some ink keeps another colour
        Missed,       ///< the picture changed, but nothing has the tint's colour
        Kept,         ///< the same picture as before
        Blank,        ///< nothing to see before and after
        Unreadable,   ///< no such file, no SVG, or refused by the tinting
        OutcomeCount
    };
    enum Feature
    {
        SymbolicLink,
        StyleBlock,
        SeveralStyleBlocks,
        ScopedStyleBlock, ///< a style block below another element than the root
        Gradient,
        CurrentColor,
        InlineStyle,
        Stroke,
        EmbeddedImage,
        Script, ///< or an external entity
        BrokenXml,
        VeryLarge, ///< more than 100 kB
        FeatureCount
    };

    Outcome outcome = Unreadable;
    std::array<bool, FeatureCount> features{};
    /// Empty parts were filled: the tinted picture is a nearly solid block, unlike the authored
    /// one.
    bool flooded = false;
    /// Several colours became one, so what was told apart by colour is a silhouette now.
    bool flattened = false;
    /// Nothing was to see before the tint; or after it.
    bool appeared = false;
    bool vanished = false;
};

/// Tints \a file, which may be anything, and judges it. An invalid \a tint judges it as authored.
/// \a withFeatures costs one more reading of the file.
IconVerdict judgeIcon(const QString &file, const QColor &tint, bool withFeatures = false);

/// Sums of verdicts.
struct IconCounts
{
    using Outcomes = std::array<int, IconVerdict::OutcomeCount>;

    void add(const IconVerdict &verdict);
    int total() const;
    /// Changed, kept and unreadable in one line, as the Icons page shows them.
    QString line() const;
    /// All counts as a table of plain text.
    QString table() const;

    Outcomes outcomes{};
    std::array<Outcomes, IconVerdict::FeatureCount> features{};
    int flooded = 0;
    int flattened = 0;
    int appeared = 0;
    int vanished = 0;
};

/// Judges every SVG file below \a folder, prints the counts and gives the exit code of the program.
int runIconSurvey(const QString &folder);
