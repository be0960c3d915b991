#pragma once

#include "vellum_export.h"

#include <QMap>
#include <QString>

/// One rule of an SVG file's style block: a selector and its declarations.
class VELLUM_EXPORT CSSItem
{
public:
    CSSItem();
    virtual ~CSSItem();
    CSSItem(const CSSItem &other);
    CSSItem &operator=(const CSSItem &other);

    /// The text before the brace, trimmed; a leading dot is kept.
    QString name;
    /// Property to value, in ascending order of the properties.
    QMap<QString, QString> attributes;
};
