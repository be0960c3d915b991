#include "labels/cuslabel.h"

#include "common/svgimageinfo.h"
#include "labels/textruler.h"

#include <QHash>
#include <QMouseEvent>
#include <QPainter>
#include <QPointer>
#include <QStringList>
#include <QSvgRenderer>
#include <QTimer>

namespace {

constexpr int kScrollInterval = 300;
constexpr int kDefaultPixelSize = 14;
constexpr int kPartShrink = 2;
constexpr int kLineBreakMargin = 5;
constexpr int kKeptMetrics = 16;

/// What stands between the end of a scrolling text and its next beginning.
QString scrollGap()
{
    return QStringLiteral("    ");
}

int nextPartSize(int size)
{
    return qMax(size - kPartShrink, 1);
}

/// A size that no font can have, as a font in points leaves it, would make Qt complain at every
/// paint: the part then has the label's own size.
QString wrapped(const QString &part, int size)
{
    const QString style =
        size > 0 ? QStringLiteral(" style='font-size:%1px';").arg(size) : QString();
    return QLatin1String("<font") + style + QLatin1Char('>') + part + QLatin1String("</font>");
}

QString richText(int size, const QStringList &parts)
{
    if (parts.size() == 1)
        return parts.first();
    QString text;
    for (const QString &part : parts) {
        text += wrapped(part, size);
        size = nextPartSize(size);
    }
    return text;
}

/// The metrics of the application's font at \a pixelSize; a size that no font can have leaves the
/// font's own. Finding a font costs more than measuring a short text, and the labels of a window
/// share one or two sizes, so the last ones are kept until the application's font changes.
QFontMetrics defaultMetrics(int pixelSize)
{
    static QFont base;
    static QHash<int, QFontMetrics> kept;
    QFont font;
    if (!font.isCopyOf(base) || kept.size() > kKeptMetrics) {
        base = font;
        kept.clear();
    }
    const int size = qMax(0, pixelSize);
    const auto found = kept.constFind(size);
    if (found != kept.constEnd())
        return *found;
    if (size > 0)
        font.setPixelSize(size);
    return *kept.insert(size, QFontMetrics(font));
}

/// Breaks inside words, deliberately: names of cameras and files often hold no blank at all.
QString brokenText(const QFontMetrics &metrics, const QString &text, int width)
{
    vellum::TextRuler ruler(metrics, text);
    if (width >= ruler.width(0, text.size()) + kLineBreakMargin)
        return text;
    QString broken;
    broken.reserve(text.size() + text.size() / 8);
    for (int from = 0; from < text.size();) {
        const int rest = text.size() - from;
        const int length = ruler.lengthReaching(width - kLineBreakMargin, from, 1, rest);
        broken += text.midRef(from, length);
        if (length < 0)
            break;
        broken += QLatin1Char('\n');
        from += length;
    }
    return broken;
}

/// Where the stretch ends that a scrolling label of \a width shows from \a position on. One that
/// goes on into the gap or the next round reaches all that is left of the text, however long it is.
int scrollEnd(const QFontMetrics &metrics, const QString &full, int position, int width)
{
    // Beyond the end of the text every length measures the same.
    const int looped = full.size() + scrollGap().size();
    const int last = qMin(looped - 1, qMax(position, full.size() - position));
    const int length =
        vellum::TextRuler(metrics, full).lengthReaching(width, position, position, last);
    return length < 0 ? looped : qMin(position + length + 1, looped);
}

} // namespace

struct CusLabel::Private
{
    /// The last measured text with all that it depends on beside the parts: every paint with a font
    /// in points, and every resize, asks for it again.
    struct Measured
    {
        bool valid = false;
        LableType type = LABEL_TYPE_DEFAULT;
        int width = 0;
        int size = 0;
        QFont font;
        QString text;
        bool cut = false;

        bool holds(LableType wantedType, int wantedWidth, int wantedSize,
                   const QFont &wantedFont) const
        {
            // What was elided nowhere is elided in no wider label either.
            const bool fits = width == wantedWidth
                || (type == LABEL_TYPE_LONG_ELLIPSES && !cut && wantedWidth > width);
            return valid && fits && type == wantedType && size == wantedSize
                && (font.isCopyOf(wantedFont) || font == wantedFont);
        }
    };

    explicit Private(CusLabel *label)
        : timer(new QTimer(label))
    {
    }

    Measured elide(int size, int width) const;

    LableType lableType = LABEL_TYPE_LONG_ELLIPSES;
    QStringList texts;
    QTimer *timer;
    int interval = kScrollInterval;
    int scrollPos = 0;
    int fontPixelSize = kDefaultPixelSize;
    bool pressed = false;
    bool arrowHover = false;
    SvgImageInfo svgBG;
    int paddingLeft = 0;
    int paddingRight = 0;
    Measured measured;
};

CusLabel::Private::Measured CusLabel::Private::elide(int size, int width) const
{
    Measured result{true, LABEL_TYPE_LONG_ELLIPSES, width, size, QFont(), QString(), false};
    if (texts.size() == 1) {
        result.text = defaultMetrics(size).elidedText(texts.first(), Qt::ElideRight, width);
        result.cut = result.text != texts.first();
        return result;
    }
    int remaining = width;
    for (const QString &part : texts) {
        const QFontMetrics metrics = defaultMetrics(size);
        const QString elided = metrics.elidedText(part, Qt::ElideRight, remaining);
        remaining -= metrics.horizontalAdvance(elided);
        result.text += wrapped(elided, size);
        size = nextPartSize(size);
        result.cut = elided != part;
        if (result.cut)
            break;
    }
    return result;
}

CusLabel::CusLabel(QWidget *parent)
    : QLabel(parent)
    , d(std::make_unique<Private>(this))
{
    d->timer->setInterval(d->interval);
    connect(d->timer, &QTimer::timeout, this, &CusLabel::onTimeOut);
}

CusLabel::CusLabel(const QString &text, QWidget *parent)
    : CusLabel(parent)
{
    setText(text);
}

CusLabel::~CusLabel() = default;

void CusLabel::setText(const QString &text)
{
    setParts({text});
}

void CusLabel::setCustomText(const QString &first, const QString &second)
{
    setParts(second.isEmpty() ? QStringList{first} : QStringList{first, second});
}

void CusLabel::setCusText(const QString &first, const QString &second)
{
    setCustomText(first, second);
}

void CusLabel::setParts(const QStringList &parts)
{
    clear();
    d->texts = parts;
    updateShownText();
    if (d->lableType == LABEL_TYPE_SCROLL_SHOW)
        getScrollShowText();
    update();
}

QString CusLabel::getCustomText() const
{
    return d->texts.join(QString());
}

void CusLabel::clear()
{
    d->timer->stop();
    d->texts.clear();
    d->scrollPos = 0;
    d->measured.valid = false;
    QLabel::clear();
}

void CusLabel::setLableType(const LableType &type)
{
    d->lableType = type;
    if (type != LABEL_TYPE_SCROLL_SHOW)
        d->timer->stop();
    else if (isVisible())
        d->timer->start();
}

CusLabel::LableType CusLabel::lableType() const
{
    return d->lableType;
}

void CusLabel::setMouseArrowHoverEnabled(bool enabled)
{
    d->arrowHover = enabled;
    setAttribute(Qt::WA_Hover, enabled);
    setMouseTracking(enabled);
}

void CusLabel::setPaddingLeftVal(int padding)
{
    d->paddingLeft = padding;
}

void CusLabel::setPaddingRightVal(int padding)
{
    d->paddingRight = padding;
}

QString CusLabel::getSvgBGImage() const
{
    return d->svgBG.svgImage();
}

void CusLabel::setSvgBGImage(const QString &file)
{
    if (file == d->svgBG.svgImage())
        return;
    d->svgBG.setSvgImage(file);
    update();
}

QColor CusLabel::getSvgBGColor() const
{
    return d->svgBG.svgColor();
}

void CusLabel::setSvgBGColor(const QColor &color)
{
    if (color == d->svgBG.svgColor())
        return;
    d->svgBG.setSvgColor(color);
    update();
}

void CusLabel::setVisible(bool visible)
{
    // Shown inside a hidden window: the window's own showing starts the timer.
    const bool seen = visible && (isWindow() || parentWidget()->isVisible());
    if (seen && d->lableType == LABEL_TYPE_SCROLL_SHOW)
        d->timer->start();
    else
        d->timer->stop();
    QLabel::setVisible(visible);
}

void CusLabel::onTimeOut()
{
    if (isVisible() && d->lableType == LABEL_TYPE_SCROLL_SHOW)
        getScrollShowText();
}

void CusLabel::paintEvent(QPaintEvent *event)
{
    const int pixelSize = font().pixelSize();
    if (pixelSize < 0 || pixelSize != d->fontPixelSize) {
        d->fontPixelSize = pixelSize;
        updateShownText();
    }
    d->svgBG.init(nullptr);
    if (QSvgRenderer *renderer = d->svgBG.render()) {
        QPainter painter(this);
        renderer->render(&painter, QRectF(rect()));
    }
    QLabel::paintEvent(event);
}

void CusLabel::resizeEvent(QResizeEvent *event)
{
    QLabel::resizeEvent(event);
    updateShownText();
}

// A label is mostly shown and hidden with its window, which doesn't call setVisible().
void CusLabel::showEvent(QShowEvent *event)
{
    if (d->lableType == LABEL_TYPE_SCROLL_SHOW)
        d->timer->start();
    QLabel::showEvent(event);
}

void CusLabel::hideEvent(QHideEvent *event)
{
    d->timer->stop();
    QLabel::hideEvent(event);
}

void CusLabel::mousePressEvent(QMouseEvent *event)
{
    const QPointer<CusLabel> guard(this);
    if (!d->pressed) {
        d->pressed = true;
        Q_EMIT signalPressed();
    }
    if (guard)
        QLabel::mousePressEvent(event);
}

void CusLabel::mouseReleaseEvent(QMouseEvent *event)
{
    const QPointer<CusLabel> guard(this);
    if (d->pressed) {
        d->pressed = false;
        Q_EMIT signalReleased();
    }
    if (guard)
        QLabel::mouseReleaseEvent(event);
}

void CusLabel::mouseMoveEvent(QMouseEvent *event)
{
    // Moves belong to the parent, which drags windows or follows the hovered row.
    event->ignore();
    QLabel::mouseMoveEvent(event);
}

void CusLabel::enterEvent(QEvent *event)
{
    if (d->arrowHover)
        setCursor(Qt::PointingHandCursor);
    QLabel::enterEvent(event);
}

void CusLabel::leaveEvent(QEvent *event)
{
    if (d->arrowHover)
        setCursor(Qt::ArrowCursor);
    QLabel::leaveEvent(event);
}

void CusLabel::updateShownText()
{
    switch (d->lableType) {
    case LABEL_TYPE_LINE_BREAK:
        if (!d->measured.holds(LABEL_TYPE_LINE_BREAK, width(), 0, font())) {
            const QString broken = brokenText(fontMetrics(), getCustomText(), width());
            d->measured = {true, LABEL_TYPE_LINE_BREAK, width(), 0, font(), broken, false};
        }
        QLabel::setText(d->measured.text);
        break;
    case LABEL_TYPE_LONG_ELLIPSES:
        showElided(shownPixelSize());
        break;
    case LABEL_TYPE_SCROLL_SHOW:
        // A text that fitted had stopped the timer; the next tick tells whether it still does.
        if (isVisible() && !d->timer->isActive())
            d->timer->start();
        break;
    case LABEL_TYPE_DEFAULT:
    default:
        QLabel::setText(richText(shownPixelSize(), d->texts));
        break;
    }
}

void CusLabel::showElided(int pixelSize)
{
    const int width = contentsRect().width();
    if (!d->measured.holds(LABEL_TYPE_LONG_ELLIPSES, width, pixelSize, QFont()))
        d->measured = d->elide(pixelSize, width);
    QLabel::setText(d->measured.text);
    changeToolTip(d->measured.cut ? getCustomText() : QString());
}

void CusLabel::getScrollShowText()
{
    const QString full = getCustomText();
    const int size = shownPixelSize();
    const QFontMetrics metrics = fontMetrics();
    if (width() >= metrics.horizontalAdvance(full)) {
        d->timer->stop();
        QLabel::setText(richText(size, d->texts));
        changeToolTip(QString());
        return;
    }
    changeToolTip(full);
    if (isVisible() && !d->timer->isActive())
        d->timer->start();

    // Each part is cut at its front only, so that it keeps its size; the label clips the rest.
    const int begin = d->scrollPos;
    const int end = scrollEnd(metrics, full, begin, width());
    QStringList shown;
    int offset = 0;
    for (const QString &part : qAsConst(d->texts)) {
        const int partEnd = offset + part.size();
        if (begin < partEnd && offset < end)
            shown.append(part.mid(qMax(0, begin - offset)));
        offset = partEnd;
    }
    QLabel::setText(richText(size, shown));
    if (++d->scrollPos >= full.size() + scrollGap().size())
        d->scrollPos = 0;
}

/// Qt tells every setting of a tool tip by an event, a repeated one too.
void CusLabel::changeToolTip(const QString &tip)
{
    if (tip != toolTip())
        setToolTip(tip);
}

int CusLabel::shownPixelSize() const
{
    const int size = font().pixelSize();
    return size < 0 ? d->fontPixelSize : size;
}
