#include "common/richstring.h"

#include <QColor>
#include <QTextDocument>

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

} // namespace

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
