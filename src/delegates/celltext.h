#pragma once

#include <QFont>
#include <QHash>
#include <QRect>
#include <QString>

class QFontMetrics;
class QWidget;

namespace vellum {

/// The pixels that stay free on each side of a text in a cell of \a widget, which may be null.
int cellTextMargin(const QWidget *widget);

/// \a text, or a start of it that is wider than \a width pixels: nobody has to shape a million
/// characters to learn that they don't fit.
QString wideStart(const QString &text, const QFontMetrics &metrics, int width);

/// The bounds of the texts that a view shows, which are the same from paint to paint.
class TextBounds
{
public:
    QRect operator()(const QString &text, const QFont &font);

private:
    QFont m_font;
    QHash<QString, QRect> m_known;
};

} // namespace vellum
