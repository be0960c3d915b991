#include "delegates/celltext.h"

#include <QApplication>
#include <QFontMetrics>
#include <QStyle>
#include <QWidget>

namespace vellum {

namespace {

constexpr int kLongText = 1024;
constexpr int kMostKnown = 1024;

} // namespace

int cellTextMargin(const QWidget *widget)
{
    const QStyle *style = widget ? widget->style() : QApplication::style();
    return style->pixelMetric(QStyle::PM_FocusFrameHMargin, nullptr, widget) + 1;
}

QString wideStart(const QString &text, const QFontMetrics &metrics, int width)
{
    for (int length = kLongText; length < text.size() / 2; length *= 2) {
        QString start = text.left(length);
        // The cut goes by the advance, and would leave a start alone that is narrower by it.
        if (qMin(metrics.boundingRect(start).width(), metrics.horizontalAdvance(start)) > width)
            return start;
    }
    return text;
}

QRect TextBounds::operator()(const QString &text, const QFont &font)
{
    if (text.size() > kLongText)
        return QFontMetrics(font).boundingRect(text);
    if (font != m_font || m_known.size() >= kMostKnown)
        m_known.clear();
    m_font = font;
    const auto known = m_known.constFind(text);
    if (known != m_known.constEnd())
        return *known;
    return *m_known.insert(text, QFontMetrics(font).boundingRect(text));
}

} // namespace vellum
