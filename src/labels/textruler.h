#pragma once

#include <QFontMetrics>
#include <QString>

namespace vellum {

/// Measures pieces of one text, and finds the place where a piece becomes too wide without
/// measuring at every character.
class TextRuler
{
public:
    TextRuler(const QFontMetrics &metrics, const QString &text);

    /// Width of the bounding rectangle of the \a length characters from \a from, in pixels.
    int width(int from, int length) const;

    /// The smallest length from \a first to \a last at which the piece from \a from is at least
    /// \a wanted pixels wide, or -1. Lengths that would part a surrogate pair don't count. The
    /// result is that of trying every length in turn. Searches by ascending \a from cost linear
    /// time together, for text of a given line length.
    int lengthReaching(int wanted, int from, int first, int last);

private:
    int lengthBelow(int wanted, int from, int first, int last);
    int steadyEnd(int from);
    bool partsPair(int position) const;

    const QFontMetrics m_metrics;
    const QString m_text;
    const bool m_steady;
    int m_steadyFrom = 0;
    int m_steadyEnd = -1;
    int m_guess = 0;
};

} // namespace vellum
