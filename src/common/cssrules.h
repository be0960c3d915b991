#pragma once

#include "common/cssitem.h"

#include <QList>

namespace vellum {

/// The rules of a style block, taken as one flat sequence without comments and at-rules. Empty if
/// there is none, or if a rule has no name, no body or no end. Only blanks may stand between and
/// after the rules; anything else begins a rule. A declaration without ';' before the '}' is
/// dropped, and so are the further colons of a value.
QList<CSSItem> parseCssRules(const QString &text);

/// \a rules as text without separators. A "." goes before every name, also before one that has its
/// own: such a rule no longer matches in the renderer, and the shapes' own attributes count.
QString cssText(const QList<CSSItem> &rules);

} // namespace vellum
