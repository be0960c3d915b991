#include "common/cusuicommonfun.h"
#include "common/steadytext.h"

#include <QFontMetricsF>
#include <QHash>
#include <QVector>

#include <algorithm>
#include <array>
#include <cmath>

namespace {

/// A stretch of this many characters is measured prefix by prefix; a search would not be faster.
constexpr int kShortStretch = 4;
constexpr char16_t kFirstIdeograph = 0x4e00;
constexpr char16_t kLastIdeograph = 0x9fa5;

bool isIdeograph(QChar c)
{
    return c.unicode() >= kFirstIdeograph && c.unicode() <= kLastIdeograph;
}

bool breaksBefore(QChar c)
{
    return c == QLatin1Char(' ') || isIdeograph(c);
}

bool breaksAfter(QChar c)
{
    return breaksBefore(c) || c == QLatin1Char(',') || c == QLatin1Char(';')
        || c == QLatin1Char('.');
}

/// Breaks one text. A line is always a stretch [m_line, end) of the text and its last word a
/// stretch [m_word, end), so no line is ever built up: only the first character that no longer fits
/// is looked for.
class Wrapper
{
public:
    Wrapper(const QFontMetrics &metrics, const QString &text, int width)
        : m_metrics(metrics)
        , m_fineMetrics(metrics)
        , m_text(text)
        , m_width(width)
    {
        m_steadyLatin.fill(Unknown);
    }

    QString wrap(int *lineCount);

private:
    enum Steadiness : char
    {
        Unknown,
        Steady,
        Unsteady
    };

    /// The stretch of a line in which a search is possible, with the expected width of each prefix.
    struct Stretch
    {
        int end;    ///< behind the last character
        int strong; ///< the first character that isn't common to all scripts, or end
    };

    bool fits(int end) { return advance(end) <= m_width; }
    int advance(int end);
    bool isSteady(QChar c);
    qreal expectedAdvance(QChar c);
    void take(int end, QString *result);
    int firstMisfit(int from);
    int firstMisfitPlainly(int from, int end);
    int firstMisfitBySearch(int from, const Stretch &stretch);
    int boundary(int low, int high, int guess);
    int withoutEarlierMisfit(int from, int found);
    Stretch steadyStretch();
    bool isAsExpected(int end);

    const QFontMetrics &m_metrics;
    const QFontMetricsF m_fineMetrics;
    const QString &m_text;
    const int m_width;
    const int m_slack = m_metrics.height();
    int m_line = 0;
    int m_word = 0;
    int m_lineCount = 0;
    /// Of the line's prefixes of 1, 2, 3... characters: the sum of the characters' own widths.
    QVector<qreal> m_expected;
    /// Of the same prefixes: the width, or -1 while it isn't known.
    QVector<int> m_measured;
    qreal m_ratio = 1; ///< of the measured width to the expected one, in the line before
    std::array<Steadiness, 256> m_steadyLatin;
    std::array<qreal, 256> m_latinAdvances{};
    QHash<ushort, qreal> m_advances;
};

qreal Wrapper::expectedAdvance(QChar c)
{
    // Ideographs share one advance in all but freak fonts, and an estimate is all that is needed.
    const ushort unit = isIdeograph(c) ? kFirstIdeograph : c.unicode();
    const auto found = m_advances.constFind(unit);
    if (found != m_advances.constEnd())
        return *found;
    return *m_advances.insert(unit, m_fineMetrics.horizontalAdvance(QString(QChar(unit))));
}

/// Whether \a c lets the search in. A spacing that eats a character up is one reason why not.
bool Wrapper::isSteady(QChar c)
{
    if (c.unicode() >= m_steadyLatin.size())
        return vellum::growsSteadily(c) && expectedAdvance(c) > 0;
    Steadiness &known = m_steadyLatin[c.unicode()];
    if (known == Unknown) {
        known = vellum::growsSteadily(c) && expectedAdvance(c) > 0 ? Steady : Unsteady;
        if (known == Steady)
            m_latinAdvances[c.unicode()] = expectedAdvance(c);
    }
    return known == Steady;
}

/// The line's start, as far as its characters are steady and well beyond the width that is
/// expected.
Wrapper::Stretch Wrapper::steadyStretch()
{
    const qreal enough = qMax(0, m_width) * 1.25 + 2 * m_slack;
    Stretch stretch{m_line, -1};
    m_expected.clear();
    qreal sum = 0;
    for (; stretch.end < m_text.size() && sum <= enough; ++stretch.end) {
        const QChar c = m_text.at(stretch.end);
        if (!isSteady(c))
            break;
        sum += c.unicode() < m_latinAdvances.size() ? m_latinAdvances[c.unicode()]
                                                    : expectedAdvance(c);
        m_expected.append(sum);
        if (stretch.strong < 0 && c.script() > QChar::Script_Common)
            stretch.strong = stretch.end;
    }
    if (stretch.strong < 0)
        stretch.strong = stretch.end;
    m_measured.fill(-1, m_expected.size());
    return stretch;
}

int Wrapper::advance(int end)
{
    const int length = end - m_line;
    int *known = length <= m_measured.size() ? &m_measured[length - 1] : nullptr;
    if (known && *known >= 0)
        return *known;
    const int width =
        m_metrics.horizontalAdvance(QString::fromRawData(m_text.constData() + m_line, length));
    if (known)
        *known = width;
    return width;
}

/// Whether the prefix up to \a end is about as wide as its characters. Where it isn't, the font
/// makes something else of whole words, and nothing is known of the widths in between.
bool Wrapper::isAsExpected(int end)
{
    if (end == m_line)
        return true;
    const qreal expected = m_expected.at(end - m_line - 1);
    const int width = advance(end);
    if (std::abs(width - expected) > expected / 5 + m_slack)
        return false;
    m_ratio = qBound(0.8, width / expected, 1.25);
    return true;
}

int Wrapper::firstMisfitPlainly(int from, int end)
{
    int i = from;
    while (i < end && fits(i + 1))
        ++i;
    return i;
}

/// The character in [low, high) with which the line stops fitting, or high, if widths grow: steps
/// of doubling length from the guess until they have passed it, then halving.
int Wrapper::boundary(int low, int high, int guess)
{
    bool fittingFound = false;
    bool misfitFound = false;
    int step = 1;
    int probe = qBound(low, guess, high - 1);
    while (low < high) {
        const bool fitting = fits(probe + 1);
        (fitting ? fittingFound : misfitFound) = true;
        (fitting ? low : high) = fitting ? probe + 1 : probe;
        if (fittingFound && misfitFound)
            probe = low + (high - low) / 2;
        else
            probe = fitting ? qMin(probe + step, high - 1) : qMax(probe - step, low);
        step *= 2;
    }
    return low;
}

/// Kerning and ligatures can make a line narrower by a character more: walks back from \a found
/// until the prefixes are narrower than the width by more than such a step.
int Wrapper::withoutEarlierMisfit(int from, int found)
{
    int first = found;
    for (int i = found - 1; i >= from; --i) {
        const int width = advance(i + 1);
        if (width > m_width)
            first = i;
        else if (width + m_slack / 2 <= m_width)
            break;
    }
    return first;
}

int Wrapper::firstMisfitBySearch(int from, const Stretch &stretch)
{
    // Blanks, digits and punctuation take the font of the first letter behind them, so the letter
    // may make them all narrower: prefixes with and without it are searched one after the other.
    const auto beyond = std::upper_bound(m_expected.cbegin(), m_expected.cend(), m_width / m_ratio);
    const int guess = m_line + int(beyond - m_expected.cbegin());
    int low = from;
    for (const int high : {stretch.strong, stretch.end}) {
        if (low >= high)
            continue;
        const int found = withoutEarlierMisfit(low, boundary(low, high, guess));
        if (found < high)
            return found;
        low = high;
    }
    return low;
}

/// The first character from \a from on with which the line is too wide, or the text's size.
int Wrapper::firstMisfit(int from)
{
    const int size = m_text.size();
    const Stretch stretch = steadyStretch();
    if (stretch.end - from <= kShortStretch)
        return firstMisfitPlainly(from, size);
    const int found = firstMisfitBySearch(from, stretch);
    if (!isAsExpected(found))
        return firstMisfitPlainly(from, size);
    return found < stretch.end ? found : firstMisfitPlainly(found, size);
}

void Wrapper::take(int end, QString *result)
{
    if (m_lineCount++ > 0)
        result->append(QLatin1Char('\n'));
    result->append(m_text.constData() + m_line, end - m_line);
    m_line = end;
}

QString Wrapper::wrap(int *lineCount)
{
    QString result;
    result.reserve(m_text.size() + m_text.size() / 8);
    int from = 0;
    while (from < m_text.size()) {
        const int misfit = firstMisfit(from);
        for (int i = misfit; i > from && i > m_word; --i) {
            if (breaksAfter(m_text.at(i - 1)))
                m_word = i;
        }
        if (misfit == m_text.size())
            break;
        const QChar c = m_text.at(misfit);
        if ((misfit > m_line && breaksBefore(c)) || m_word == m_line) {
            // A break stands here, or the line is one word that is too long: it ends here. A first
            // character that is too wide by itself makes no empty line before it.
            if (misfit > m_line)
                take(misfit, &result);
            m_word = misfit;
        } else {
            take(m_word, &result);
        }
        from = misfit + 1;
        if (breaksAfter(c))
            m_word = from;
    }
    if (m_line < m_text.size())
        take(m_text.size(), &result);
    *lineCount = m_lineCount;
    return result;
}

} // namespace

QString warpString(const QFontMetrics &metrics, const QString &text, int width, bool *wrapped,
                   int *lineCount)
{
    int count = 1;
    const bool fitsAsItIs = metrics.horizontalAdvance(text) <= width;
    QString result = fitsAsItIs ? text : Wrapper(metrics, text, width).wrap(&count);
    if (lineCount)
        *lineCount = count;
    if (wrapped)
        *wrapped = count > 1;
    return result;
}
