#include "data/xmlscan.h"

#include <QByteArray>
#include <QTextCodec>

#include <algorithm>
#include <array>

namespace {

constexpr int kMaxDepth = 256;
constexpr int kMaxAttributes = 256;
constexpr int kMaxElements = 1 << 20;
constexpr int kMaxExpansion = 16 * 1024 * 1024;
constexpr int kMaxDoctype = 8 * 1024;
constexpr int kMaxParentheses = 256;
constexpr qint64 kFreeEscapeCost = qint64(1) << 28;
constexpr qint64 kMaxEscapeCostPerByte = 4096;

/// A cursor over the markup of a document. Every step() either moves it on or fails.
class MarkupScan
{
public:
    explicit MarkupScan(const QByteArray &bytes)
        : m_bytes(bytes)
    {
    }

    bool isBounded()
    {
        for (int tag = 0; (tag = m_bytes.indexOf('<', m_pos)) >= 0;) {
            addRun(m_pos, tag);
            m_pos = tag;
            if (!step())
                return false;
        }
        return m_escapeCost <= kFreeEscapeCost + kMaxEscapeCostPerByte * m_bytes.size()
            && (!m_longestEntity || m_bytes.count('&') <= kMaxExpansion / m_longestEntity);
    }

private:
    bool at(const char *text) const
    {
        return qstrncmp(m_bytes.constData() + m_pos, text, qstrlen(text)) == 0;
    }

    /// Moves behind the next \a end, or to the end of the bytes where the parser will stop as well.
    bool skipPast(const char *end, int from)
    {
        const int found = m_bytes.indexOf(end, from);
        m_pos = found < 0 ? m_bytes.size() : found + int(qstrlen(end));
        return true;
    }

    /// Qt writes a text by inserting one escape after the other into it, which moves the rest of
    /// the text each time.
    void addRun(int begin, int end)
    {
        const auto *bytes = m_bytes.constData();
        const auto escapes =
            std::count_if(bytes + begin, bytes + end, [](char c) { return c == '&' || c == '"'; });
        m_escapeCost += qint64(escapes) * (end - begin);
    }

    bool step()
    {
        if (at("<!--"))
            return skipPast("-->", m_pos + 4);
        if (at("<![CDATA["))
            return skipPast("]]>", m_pos + 9);
        if (at("<?"))
            return skipPast("?>", m_pos + 2);
        if (at("<!"))
            return doctype();
        if (at("</")) {
            --m_depth;
            return skipPast(">", m_pos + 2);
        }
        return startTag();
    }

    bool startTag()
    {
        int attributes = 0;
        const int size = m_bytes.size();
        for (++m_pos; m_pos < size && m_bytes.at(m_pos) != '>'; ++m_pos) {
            if (isQuote() && (!skipQuoted() || ++attributes > kMaxAttributes))
                return false;
        }
        const bool empty = m_pos < size && m_bytes.at(m_pos - 1) == '/';
        m_depth += empty ? 0 : 1;
        return m_depth <= kMaxDepth && ++m_elements <= kMaxElements;
    }

    bool isQuote() const { return m_bytes.at(m_pos) == '"' || m_bytes.at(m_pos) == '\''; }

    /// From an opening quote to its closing one; an open end is malformed.
    bool skipQuoted()
    {
        const int end = m_bytes.indexOf(m_bytes.at(m_pos), m_pos + 1);
        if (end < 0)
            return false;
        m_quoted = end - m_pos - 1;
        addRun(m_pos + 1, end);
        m_pos = end;
        return true;
    }

    /// A document type may declare plain entities, as some drawing programs do for name spaces;
    /// ones that nest or hold markup could hide what this scan is looking for, and expand to
    /// anything.
    bool doctype()
    {
        bool inSubset = false;
        int parentheses = 0;
        const int end = std::min(m_bytes.size(), m_pos + kMaxDoctype);
        for (m_pos += 2; m_pos < end; ++m_pos) {
            const char c = m_bytes.at(m_pos);
            if (c == '[') {
                inSubset = true;
            } else if (c == '(') {
                if (++parentheses > kMaxParentheses)
                    return false;
            } else if (c == ']') {
                inSubset = false;
            } else if (c == '%') {
                return false;
            } else if (c == '>' && !inSubset) {
                return true;
            } else if (at("<!--")) {
                skipPast("-->", m_pos + 4);
                --m_pos;
            } else if (at("<?")) {
                skipPast("?>", m_pos + 2);
                --m_pos;
            } else if (isQuote()) {
                const int begin = m_pos + 1;
                if (!skipQuoted() || !isPlain(begin))
                    return false;
                m_longestEntity = std::max(m_longestEntity, m_quoted);
            }
        }
        return false;
    }

    bool isPlain(int begin) const
    {
        const char *first = m_bytes.constData() + begin;
        const std::array<char, 5> special = {'<', '&', '%', '"', '\''};
        return std::find_first_of(first, first + m_quoted, special.begin(), special.end())
            == first + m_quoted;
    }

    const QByteArray &m_bytes;
    int m_pos = 0;
    int m_depth = 0;
    int m_elements = 0;
    int m_quoted = 0;
    int m_longestEntity = 0;
    qint64 m_escapeCost = 0;
};

/// The encoding that the XML declaration names, in lower case without separators. Like Qt's reader
/// it takes what is quoted first behind the first "encoding", or a declaration could show this scan
/// another name than the reader.
QByteArray declaredEncoding(const QByteArray &bytes)
{
    if (!bytes.startsWith("<?xml"))
        return QByteArray();
    const QByteArray declaration = bytes.left(bytes.indexOf('>'));
    int pos = declaration.indexOf("encoding");
    if (pos < 0)
        return QByteArray();
    while (pos < declaration.size() && declaration.at(pos) != '"' && declaration.at(pos) != '\'')
        ++pos;
    QByteArray encoding;
    for (++pos; pos < declaration.size(); ++pos) {
        const char c = declaration.at(pos);
        if (c == '"' || c == '\'')
            break;
        if (c != '-' && c != '_')
            encoding.append(c);
    }
    return encoding.toLower();
}

} // namespace

namespace vellum {

bool hasAsciiEncoding(const QByteArray &bytes)
{
    static const std::array<const char *, 11> supersets = {
        "utf8",  "usascii", "ascii", "iso8859", "latin1",   "windows125",
        "cp125", "koi8",    "gb",    "euc",     "macintosh"};
    const QByteArray encoding = declaredEncoding(bytes);
    return encoding.isEmpty()
        || std::any_of(supersets.begin(), supersets.end(),
                       [&encoding](const char *name) { return encoding.startsWith(name); });
}

bool isBoundedXml(const QByteArray &bytes)
{
    const QTextCodec *codec = QTextCodec::codecForUtfText(bytes, nullptr);
    const QByteArray plain = codec ? codec->toUnicode(bytes).toUtf8() : bytes;
    if (plain.contains('\0') || (!codec && !hasAsciiEncoding(bytes)))
        return false;
    return MarkupScan(plain).isBounded();
}

} // namespace vellum
