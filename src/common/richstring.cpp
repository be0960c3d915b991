#include "common/richstring.h"

#include "common/richpiece.h"

#include <QColor>
#include <QTextDocument>

#include <algorithm>
#include <iterator>
#include <utility>

namespace {

void appendEscaped(QString &html, QChar character)
{
    switch (character.unicode()) {
    case u'&':
        html += QLatin1String("&amp;");
        break;
    case u'>':
        html += QLatin1String("&gt;");
        break;
    case u'<':
        html += QLatin1String("&lt;");
        break;
    case u'"':
        html += QLatin1String("&quot;");
        break;
    case u'\'':
        html += QLatin1String("&#39;");
        break;
    case u' ':
        html += QLatin1String("&nbsp;");
        break;
    case u'\n':
    case u'\r':
        html += QLatin1String("<br>");
        break;
    default:
        html += character;
    }
}

// One pass instead of a replacement per character: long logs would pay for moving their tail.
QString escaped(const QString &text)
{
    QString html;
    html.reserve(text.size() + text.size() / 2);
    for (const QChar character : text)
        appendEscaped(html, character);
    return html;
}

QString unescaped(const QString &html)
{
    static const std::pair<QLatin1String, QChar> marks[] = {
        {QLatin1String("&nbsp;"), QLatin1Char(' ')}, {QLatin1String("<br>"), QLatin1Char(' ')},
        {QLatin1String("&lt;"), QLatin1Char('<')},   {QLatin1String("&gt;"), QLatin1Char('>')},
        {QLatin1String("&amp;"), QLatin1Char('&')},  {QLatin1String("&quot;"), QLatin1Char('"')},
        {QLatin1String("&#39;"), QLatin1Char('\'')},
    };
    QString text;
    text.reserve(html.size());
    for (int i = 0; i < html.size();) {
        const QStringRef rest = html.midRef(i);
        const auto *mark = std::find_if(std::begin(marks), std::end(marks), [&rest](const auto &m) {
            return rest.startsWith(m.first);
        });
        const bool isMark = mark != std::end(marks);
        text += isMark ? mark->second : html.at(i);
        i += isMark ? mark->first.size() : 1;
    }
    return text;
}

} // namespace

vellum::RichPiece vellum::richPiece(const RichString &rich)
{
    // The span is always the one that the constructors below write.
    const QString html = rich.toHtmlText();
    const int body = html.indexOf(QLatin1Char('>')) + 1;
    const int end = html.lastIndexOf(QLatin1String("</span>"));
    RichPiece piece;
    if (body <= 0 || end < body)
        return piece;
    piece.text = unescaped(html.mid(body, end - body));
    const int color = html.lastIndexOf(QLatin1String("color:#"), body - 1);
    if (color >= 0)
        piece.color = QColor(html.mid(color + 6, 7));
    return piece;
}

RichString::RichString(const QString &text)
    : m_html(QStringLiteral("<span style = \"font-size:14px;\">%1</span>").arg(escaped(text)))
{
}

RichString::RichString(const QColor &color, const QString &text)
    : RichString(text)
{
    // Both values in one call: a text that holds "%1" stays as it is.
    if (color.isValid())
        m_html = QStringLiteral("<span style = \"font-size:14px; color:%1;\">%2</span>")
                     .arg(color.name(), escaped(text));
}

RichString::RichString(const QFont &, const QString &) { }

RichString::RichString(const QFont &, const QString &, const QString &) { }

RichString::RichString(const QColor &, const QString &, const QString &) { }

QString RichString::toHtmlText() const
{
    return m_html;
}

QString RichString::toPlainText() const
{
    // Plain on purpose: clients read the HTML back here, and the document only settles separators.
    return QTextDocument(m_html).toPlainText();
}
