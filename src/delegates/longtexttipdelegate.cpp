#include "delegates/longtexttipdelegate.h"

#include "common/cusuicommonfun.h"
#include "delegates/celltext.h"

#include <QCache>
#include <QCursor>
#include <QGuiApplication>
#include <QPainter>
#include <QScreen>

#include <limits>

namespace {

constexpr int kTipFontSize = 12;
constexpr int kScreenMargin = 100;
constexpr int kTipLines = 10;
/// Characters, so that even tips of millions are kept for some cells.
constexpr int kKeptTips = 1 << 22;

int screenWidth()
{
    const QScreen *screen = QGuiApplication::screenAt(QCursor::pos());
    if (!screen)
        screen = QGuiApplication::primaryScreen();
    return screen ? screen->geometry().width() : std::numeric_limits<int>::max();
}

/// A line for each part of \a text as QString::split() would cut it, or the first ten and a line
/// with the number of all.
QString linesOfParts(const QString &text, const QString &separator)
{
    QString lines;
    int parts = 0;
    int start = 0;
    for (int end = 0; end >= 0; start = end + separator.size()) {
        // An empty separator stands between all characters, and before the first.
        end = text.indexOf(separator, start + (separator.isEmpty() && parts > 0 ? 1 : 0));
        if (parts > 0 && parts < kTipLines)
            lines += QLatin1Char('\n');
        if (parts++ < kTipLines)
            lines += text.midRef(start, end < 0 ? -1 : end - start);
    }
    if (parts > kTipLines)
        lines += QStringLiteral("\n%1(%2)")
                     .arg(LongTextTipDelegate::tr("Total"), QString::number(parts));
    return lines;
}

} // namespace

struct LongTextTipDelegate::Private
{
    QString wrapped(const QString &text, const QFont &font, int width);

    QString lineSeparator;
    bool lineBreakDisplay = false;
    QList<int> lineBreakCols;
    bool noFocus = true;
    /// Wrapping a text is too slow for every paint.
    QCache<QString, QString> wrappedTips{kKeptTips};
    QFont wrapFont;
    int wrapWidth = 0;
};

QString LongTextTipDelegate::Private::wrapped(const QString &text, const QFont &font, int width)
{
    if (font != wrapFont || width != wrapWidth)
        wrappedTips.clear();
    wrapFont = font;
    wrapWidth = width;
    if (const QString *known = wrappedTips.object(text))
        return *known;
    QString result = warpString(QFontMetrics(font), text, width, nullptr, nullptr);
    wrappedTips.insert(text, new QString(result), text.size() + result.size());
    return result;
}

/// What the tip of a text says that doesn't fit its cell.
QString LongTextTipDelegate::tipOf(const QString &text, int column,
                                   const QStyleOptionViewItem &option) const
{
    if (d->lineBreakDisplay && d->lineBreakCols.contains(column))
        return linesOfParts(text, d->lineSeparator);
    const int width = screenWidth();
    const QString start = vellum::wideStart(text, QFontMetrics(option.font), width);
    if (textBoundingRect(start, option.font, option.widget).width() < width)
        return text;
    QFont font = option.font;
    font.setPixelSize(kTipFontSize);
    return d->wrapped(text, font, width - kScreenMargin);
}

LongTextTipDelegate::LongTextTipDelegate(QObject *parent)
    : TipStyleDelegate(parent)
    , d(std::make_unique<Private>())
{
    setEnableMultiDelegate(true);
}

LongTextTipDelegate::~LongTextTipDelegate() = default;

void LongTextTipDelegate::paint(QPainter *painter, const QStyleOptionViewItem &option,
                                const QModelIndex &index) const
{
    if (!painter)
        return;
    TipStyleDelegate::paint(painter, option, index);
    QStyleOptionViewItem cell = option;
    initStyleOption(&cell, index);
    // Meant: the text of a selected cell takes the colour of selected text under the cursor only.
    if (cell.state & QStyle::State_Selected && !cursorInRect(cell, cell.rect))
        cell.state &= ~QStyle::State_Selected;
    cell.text = index.data(Qt::DisplayRole).toString();
    if (!paintItemText(painter, cell, index))
        addTipDeleteInfo(index, {cell.rect, tipOf(cell.text, index.column(), cell)});
}

void LongTextTipDelegate::setEnableNoFocus(bool enable)
{
    d->noFocus = enable;
}

bool LongTextTipDelegate::getEnableNoFocus() const
{
    return d->noFocus;
}

void LongTextTipDelegate::setLineBreakDisplay(const QList<int> &cols, const QString &separator,
                                              bool enable)
{
    d->lineBreakCols = cols;
    d->lineSeparator = separator;
    d->lineBreakDisplay = enable;
}

void LongTextTipDelegate::initStyleOption(QStyleOptionViewItem *option,
                                          const QModelIndex &index) const
{
    if (!option)
        return;
    TipStyleDelegate::initStyleOption(option, index);
    delStyleOptionStateAndFeature(option, d->noFocus ? QStyle::State_HasFocus : QStyle::State_None,
                                  QStyleOptionViewItem::HasDisplay
                                      | QStyleOptionViewItem::HasCheckIndicator);
}
