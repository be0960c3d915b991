#pragma once

#include <QColor>
#include <QString>

class RichString;

namespace vellum {

/// What a RichString says, for painting without a document.
struct RichPiece
{
    QString text;       ///< one line: breaks are blanks, and so are no-break spaces
    QColor color;       ///< invalid where none was given
    int pixelSize = 14; ///< that of every RichString
};

RichPiece richPiece(const RichString &rich);

} // namespace vellum
