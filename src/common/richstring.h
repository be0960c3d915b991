#pragma once

#include "vellum_export.h"

#include <QMetaType>
#include <QString>

class QColor;
class QFont;

/// A plain text turned into HTML of a fixed size (14 pixels), for rich-text labels and cells.
///
/// Markup in the text can't take effect: &, <, > and both quotes are escaped, a blank becomes a
/// no-break space, and each line feed and each carriage return becomes a break (so CR LF gives
/// two). A value class: cheap to copy, usable in QVariant.
class VELLUM_EXPORT RichString
{
public:
    /// No HTML at all, not even the span.
    RichString() = default;
    RichString(const QString &text);
    /// An invalid \a color gives the HTML without a colour; alpha is not kept.
    RichString(const QColor &color, const QString &text);
    /// Holds an empty string; the arguments are not used.
    RichString(const QFont &font, const QString &text);
    /// Holds an empty string; the arguments are not used.
    RichString(const QFont &font, const QString &text, const QString &extra);
    /// Holds an empty string; the arguments are not used.
    RichString(const QColor &color, const QString &text, const QString &extra);

    QString toHtmlText() const;
    /// The HTML as the plain text of a document: tags and entities stay in it.
    QString toPlainText() const;

    bool operator==(const RichString &other) const { return m_html == other.m_html; }
    bool operator!=(const RichString &other) const { return m_html != other.m_html; }

private:
    QString m_html;
};

Q_DECLARE_TYPEINFO(RichString, Q_MOVABLE_TYPE);
Q_DECLARE_METATYPE(RichString)
