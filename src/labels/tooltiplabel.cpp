#include "labels/tooltiplabel.h"

#include "common/cuscolorconfig.h"
#include "common/cusuicommonfun.h"
#include "common/safeint.h"
#include "common/saferect.h"

#include <QAbstractTextDocumentLayout>
#include <QApplication>
#include <QCursor>
#include <QPaintEvent>
#include <QPainter>
#include <QPointer>
#include <QScreen>
#include <QSet>
#include <QTextDocument>
#include <QTimer>

#include <utility>

namespace {

constexpr int kMargin = 4;
constexpr int kFontSize = 12;
constexpr int kCornerRadius = 4;
constexpr int kShowTime = 10000;
/// Window systems measure in 16 bits; a longer text has left every screen before.
constexpr int kLargestWindow = 32767;
constexpr QPoint kCursorOffset(2, 16);
constexpr QPoint kOtherSideOffset(4, 24);

struct GlobalTip
{
    ToolTipLabel *current = nullptr;
    /// The current one, and those that wait for their deletion.
    QSet<ToolTipLabel *> living;
    bool hasCleanUp = false;
};

GlobalTip &globalTip()
{
    static GlobalTip tip;
    return tip;
}

/// The global tip has no parent, so nobody else deletes one that is on the screen, or waits for its
/// deletion, when the application ends.
void deleteGlobalTips()
{
    globalTip().hasCleanUp = false;
    qDeleteAll(std::exchange(globalTip().living, {}));
}

ToolTipLabel *makeGlobalTip()
{
    auto *tip = new ToolTipLabel;
    GlobalTip &global = globalTip();
    global.current = tip;
    global.living.insert(tip);
    if (!global.hasCleanUp)
        qAddPostRoutine(deleteGlobalTips);
    global.hasCleanUp = true;
    QObject::connect(
        tip, &QObject::destroyed, tip,
        [tip] {
            GlobalTip &owner = globalTip();
            owner.living.remove(tip);
            // A hidden tip dies in the event loop, when its successor may stand here already.
            if (owner.current == tip)
                owner.current = nullptr;
        },
        Qt::DirectConnection);
    return tip;
}

QFont tipFont(const QWidget *widget)
{
    QFont font = widget->font();
    font.setPixelSize(kFontSize);
    return font;
}

void setUpDocument(QTextDocument *document, const QLabel *label, const QString &text)
{
    document->setDefaultFont(tipFont(label));
    document->setDocumentMargin(label->margin());
    document->setHtml(text);
}

} // namespace

struct ToolTipLabel::Private
{
    QTimer *timer = nullptr;
    int interval = kShowTime;
    QRect rect;
    bool tableTip = false;
    bool hasRichMinimum = false;
    QPointer<QWidget> toolTipWidget;
    QColor borderColor{QStringLiteral("#606c80")};
    QColor backgroundColor{QStringLiteral("#424e64")};
    QColor textColor{QStringLiteral("#FFFFFF")};
};

ToolTipLabel::ToolTipLabel(QWidget *parent)
    : QLabel(parent, Qt::ToolTip | Qt::FramelessWindowHint)
    , d(std::make_unique<Private>())
{
    setAttribute(Qt::WA_TranslucentBackground);
    setObjectName(QStringLiteral("label_toolTip"));
    setMargin(kMargin);
    // The theme decides alone: a file without these keys gives invalid colours, not ours.
    const CusColorConfig *config = CusColorConfig::instance();
    d->borderColor = config->getColor(QStringLiteral("ToolTipLabel_TipBordderColor"), QColor());
    d->backgroundColor = config->getColor(QStringLiteral("ToolTipLabel_TipBGroundColor"), QColor());
    d->textColor = config->getColor(QStringLiteral("ToolTipLabel_TipTextColor"), QColor());
    d->timer = new QTimer(this);
    d->timer->setSingleShot(true);
    connect(d->timer, &QTimer::timeout, this, &QWidget::hide);
}

ToolTipLabel::~ToolTipLabel() = default;

void ToolTipLabel::showLabelText(const QPoint &pos, const QString &text, QWidget *widget)
{
    if (!widget)
        return;
    ToolTipLabel *tip = globalTip().current;
    if (!tip)
        tip = makeGlobalTip();
    if (tip->getToolTipWidget() == widget && tip->isVisible() && !tip->textChanged(text))
        return;
    tip->setToolTipWidget(widget);
    tip->updateSize(text);
    tip->placeTip(pos);
    tip->showNormal();
}

void ToolTipLabel::placeTip(const QPoint &pos)
{
    // 64 bits: the position is the caller's, and may stand at the end of int.
    qint64 x = qint64(pos.x()) + kCursorOffset.x();
    qint64 y = qint64(pos.y()) + kCursorOffset.y();
    const QScreen *screen = QGuiApplication::screenAt(pos);
    if (!screen)
        screen = QGuiApplication::primaryScreen();
    if (screen) {
        const QRect area = screen->geometry();
        const int right = area.x() + area.width();
        const int bottom = area.y() + area.height();
        if (x + width() > right)
            x -= kOtherSideOffset.x() + width();
        if (y + height() > bottom)
            y -= kOtherSideOffset.y() + height();
        y = qMax<qint64>(y, area.y());
        if (x + width() > right)
            x = right - width();
        x = qMax<qint64>(x, area.x());
        if (y + height() > bottom)
            y = bottom - height();
    }
    move(vellum::safeExtent(x), vellum::safeExtent(y));
}

void ToolTipLabel::updateSize(const QString &text)
{
    if (std::exchange(d->hasRichMinimum, false))
        setMinimumSize(0, 0);
    setText(text);
    adjustSize();
    if (Qt::mightBeRichText(text)) {
        QTextDocument document;
        setUpDocument(&document, this, text);
        const QSizeF size = document.size();
        setMinimumSize(vellum::toInt(size.width(), 0, kLargestWindow),
                       vellum::toInt(size.height(), 0, kLargestWindow));
        d->hasRichMinimum = true;
        return;
    }
    const QFontMetrics metrics(tipFont(this));
    int textWidth = 0;
    const QStringList lines = text.split(QLatin1Char('\n'));
    for (const QString &line : lines)
        textWidth =
            qMax(textWidth, CusUiCommonFun::textBoundingRectUi(line, metrics, this).width());
    textWidth = qMin(textWidth, kLargestWindow);
    if (width() < textWidth)
        resize(textWidth, height());
}

void ToolTipLabel::setTableTip(bool tableTip)
{
    d->tableTip = tableTip;
}

void ToolTipLabel::setToolTipWidget(QWidget *widget)
{
    d->toolTipWidget = widget;
}

QWidget *ToolTipLabel::getToolTipWidget() const
{
    return d->toolTipWidget;
}

bool ToolTipLabel::rectChanged(const QRect &rect)
{
    if (d->rect == rect)
        return false;
    d->rect = rect;
    return true;
}

bool ToolTipLabel::textChanged(const QString &text) const
{
    return this->text() != text;
}

bool ToolTipLabel::eventFilter(QObject *watched, QEvent *event)
{
    Q_UNUSED(watched)
    switch (event->type()) {
    case QEvent::MouseButtonPress:
    case QEvent::MouseButtonRelease:
    case QEvent::MouseButtonDblClick:
    case QEvent::FocusIn:
    case QEvent::FocusOut:
    case QEvent::Leave:
    case QEvent::Close:
    case QEvent::WindowActivate:
    case QEvent::WindowDeactivate:
    case QEvent::Wheel:
        hide();
        break;
    case QEvent::MouseMove:
        if (d->tableTip && isVisible() && !d->rect.contains(QCursor::pos()))
            hide();
        break;
    default:
        break;
    }
    return false;
}

void ToolTipLabel::setVisible(bool visible)
{
    if (visible) {
        // The filter comes last, so that no event of the showing itself hides the tip.
        QLabel::setVisible(true);
        qApp->installEventFilter(this);
        d->timer->start(d->interval);
        return;
    }
    qApp->removeEventFilter(this);
    d->timer->stop();
    QLabel::setVisible(false);
    // Only one tip makes sense at a time, so whichever tip is hidden takes the global one along.
    if (ToolTipLabel *tip = std::exchange(globalTip().current, nullptr))
        tip->deleteLater();
}

void ToolTipLabel::paintEvent(QPaintEvent *event)
{
    const QRect rect = event->rect();
    QPainter painter(this);
    painter.setRenderHint(QPainter::Antialiasing);
    painter.setPen(QPen(d->borderColor, 1, Qt::SolidLine));
    painter.setBrush(d->backgroundColor);
    // Half a pixel in: a line of one pixel is crisp along pixel centres only.
    painter.drawRoundedRect(QRectF(rect.adjusted(0, 0, -1, -1)).translated(0.5, 0.5), kCornerRadius,
                            kCornerRadius);
    painter.setPen(d->textColor);
    painter.setFont(tipFont(this));
    const QRect textRect = rect.adjusted(margin(), 0, 0, 0);
    if (!Qt::mightBeRichText(text())) {
        painter.drawText(textRect, Qt::AlignLeft | Qt::AlignVCenter, text());
        return;
    }
    QTextDocument document;
    setUpDocument(&document, this, text());
    // Not QTextDocument::drawContents(): it takes the application's text colour in place of the
    // tip's.
    QAbstractTextDocumentLayout::PaintContext context;
    context.clip = textRect;
    context.palette.setColor(QPalette::Text, d->textColor);
    painter.setClipRect(textRect);
    document.documentLayout()->draw(&painter, context);
}
