#include "labels/textruler.h"

#include "common/steadytext.h"

#include <algorithm>

namespace vellum {

TextRuler::TextRuler(const QFontMetrics &metrics, const QString &text)
    : m_metrics(metrics)
    , m_text(text)
    // A spacing that eats up narrow characters lets the width fall from one character to the next.
    , m_steady(metrics.horizontalAdvance(QStringLiteral("i")) > 0
               && metrics.horizontalAdvance(QStringLiteral(" ")) > 0)
{
}

int TextRuler::width(int from, int length) const
{
    const int measured = qMin(length, m_text.size() - from);
    if (measured <= 0)
        return 0;
    return m_metrics.boundingRect(QString::fromRawData(m_text.constData() + from, measured))
        .width();
}

int TextRuler::lengthReaching(int wanted, int from, int first, int last)
{
    const int steadyLast = qMin(last, steadyEnd(from) - from);
    for (int length = lengthBelow(wanted, from, first, steadyLast) + 1; length <= last; ++length) {
        if (!partsPair(from + length) && width(from, length) >= wanted)
            return length;
    }
    return -1;
}

/// The largest length from \a first - 1 to \a last, in steady text, that is so far from \a wanted
/// that no shorter one can reach it either: there a longer piece is never narrower than a shorter
/// one by half an em.
int TextRuler::lengthBelow(int wanted, int from, int first, int last)
{
    const int em = qMax(2, m_metrics.height());
    const int safe = wanted - em / 2;
    int below = first - 1;
    int belowWidth = 0;
    int beyond = last + 1;
    int beyondWidth = -1;
    int probe = m_guess > 0 ? m_guess : wanted / em;
    for (int round = 1; beyond - below > 1; ++round) {
        probe = qBound(below + 1, probe, beyond - 1);
        const int measured = width(from, probe);
        if (measured < safe) {
            below = probe;
            belowWidth = measured;
        } else {
            beyond = probe;
            beyondWidth = measured;
        }
        // Lines of one text are much alike, so the place is guessed from the mean width of a
        // character; halving now and then bounds the rounds where they are not.
        const bool bounded = beyondWidth >= 0;
        const qint64 span = bounded ? beyond - below : qMax(1, below);
        const qint64 spanWidth = bounded ? beyondWidth - belowWidth : belowWidth;
        const qint64 step = bounded && round % 3 == 0
            ? span / 2
            : (safe - belowWidth) * span / qMax<qint64>(1, spanWidth);
        probe = int(qMin<qint64>(below + qMax<qint64>(1, step), last));
    }
    m_guess = below;
    return below;
}

/// The end of the steady characters from \a from on.
int TextRuler::steadyEnd(int from)
{
    if (!m_steady)
        return from;
    if (from < m_steadyFrom || from > m_steadyEnd) {
        const auto end = std::find_if_not(m_text.cbegin() + qMin(from, m_text.size()),
                                          m_text.cend(), growsSteadily);
        m_steadyFrom = from;
        m_steadyEnd = int(end - m_text.cbegin());
    }
    return m_steadyEnd;
}

bool TextRuler::partsPair(int position) const
{
    return position > 0 && position < m_text.size() && m_text.at(position).isLowSurrogate()
        && m_text.at(position - 1).isHighSurrogate();
}

} // namespace vellum
