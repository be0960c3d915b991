#pragma once

#include <QTranslator>

/// Translates every text to its context, a slash and the text, so that a test sees that and where a
/// text was translated.
class MarkingTranslator : public QTranslator
{
public:
    QString translate(const char *context, const char *source, const char *, int) const override
    {
        return QLatin1String(context) + QLatin1Char('/') + QLatin1String(source);
    }
    bool isEmpty() const override { return false; }
};
