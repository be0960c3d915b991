#include "common/cssrules.h"

namespace {

/// Reads the declarations from \a pos, behind the '{', and leaves \a pos behind the '}'. False if
/// the text ends first.
bool parseBody(const QString &text, int *pos, QMap<QString, QString> *attributes)
{
    QString key;
    QString value;
    QString *current = &key;
    for (; *pos < text.size(); ++*pos) {
        const QChar c = text.at(*pos);
        if (c == QLatin1Char('}')) {
            ++*pos;
            return true;
        }
        if (c == QLatin1Char(':')) {
            current = &value;
        } else if (c == QLatin1Char(';')) {
            key = key.trimmed();
            value = value.trimmed();
            if (!key.isEmpty() && !value.isEmpty())
                attributes->insert(key, value);
            key.clear();
            value.clear();
            current = &key;
        } else {
            current->append(c);
        }
    }
    return false;
}

} // namespace

namespace vellum {

QList<CSSItem> parseCssRules(const QString &text)
{
    QList<CSSItem> rules;
    int pos = 0;
    while (pos < text.size()) {
        if (text.at(pos) == QLatin1Char(' ')) {
            ++pos;
            continue;
        }
        const int brace = text.indexOf(QLatin1Char('{'), pos);
        if (brace < 0)
            return {};
        CSSItem rule;
        rule.name = text.mid(pos, brace - pos).trimmed();
        pos = brace + 1;
        if (rule.name.isEmpty() || !parseBody(text, &pos, &rule.attributes))
            return {};
        rules.append(rule);
    }
    return rules;
}

QString cssText(const QList<CSSItem> &rules)
{
    QString css;
    for (const CSSItem &rule : rules) {
        css += QLatin1Char('.') + rule.name + QLatin1Char('{');
        for (auto it = rule.attributes.cbegin(); it != rule.attributes.cend(); ++it) {
            const QString key = it.key().trimmed();
            const QString value = it.value().trimmed();
            if (!key.isEmpty() && !value.isEmpty())
                css += key + QLatin1Char(':') + value + QLatin1Char(';');
        }
        css += QLatin1Char('}');
    }
    return css;
}

} // namespace vellum
