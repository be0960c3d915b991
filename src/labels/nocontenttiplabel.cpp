#include "labels/nocontenttiplabel.h"

#include "common/saferect.h"

#include <QEvent>
#include <QPointer>
#include <QVariant>

namespace {

constexpr char kOriginText[] = "__origin_tip";
constexpr int kMinimumHeight = 30;
constexpr QPoint kFollowOffset(20, 40);

QPoint globalPlace(const QWidget *widget, NoContentTipLabel::ShowType type, int x, int y)
{
    qint64 below = y;
    if (type == NoContentTipLabel::Show_Center)
        below = widget->height() / 2;
    else if (type == NoContentTipLabel::Show_Below)
        below += widget->height();
    const QPoint corner = widget->mapToGlobal(QPoint(0, 0));
    return {vellum::safeExtent(qint64(corner.x()) + x), vellum::safeExtent(corner.y() + below)};
}

} // namespace

struct NoContentTipLabel::Private
{
    ShowType showType = Show_Top;
    QPointer<QWidget> attachedWidget;
};

NoContentTipLabel::NoContentTipLabel(QWidget *parent)
    : QLabel(parent)
    , d(std::make_unique<Private>())
{
    setWordWrap(true);
    setMinimumHeight(kMinimumHeight);
    setAlignment(Qt::AlignHCenter);
    setProperty("gray", true);
    if (parent)
        parent->installEventFilter(this);
}

NoContentTipLabel::~NoContentTipLabel() = default;

void NoContentTipLabel::showTipContent(const QString &text, QWidget *widget, ShowType type, int x,
                                       int y)
{
    // A label that followed itself would never come to rest.
    if (text.isEmpty() || !widget || widget == this) {
        hide();
        return;
    }
    if (d->attachedWidget && d->attachedWidget != parentWidget())
        d->attachedWidget->removeEventFilter(this);
    d->attachedWidget = widget;
    widget->installEventFilter(this);
    setOriginText(text);
    takeWidthOf(widget);
    if (!parentWidget()) {
        hide();
        return;
    }
    move(parentWidget()->mapFromGlobal(globalPlace(widget, type, x, y)));
    show();
    d->showType = type;
}

void NoContentTipLabel::showTipContentAsChild(const QString &text, QWidget *widget, int x, int y)
{
    if (text.isEmpty() || !widget || widget == this || isAncestorOf(widget)) {
        hide();
        return;
    }
    if (parentWidget() != widget)
        setParent(widget);
    widget->installEventFilter(this);
    setOriginText(text);
    takeWidthOf(widget);
    move(vellum::safeExtent(x), vellum::safeExtent(y));
    show();
}

void NoContentTipLabel::updateTipContentAsChild(const QString &text)
{
    if (text.isEmpty())
        return;
    setOriginText(text);
    show();
}

void NoContentTipLabel::resetPosition(QWidget *widget, int x, int y)
{
    if (widget && parentWidget())
        move(parentWidget()->mapFromGlobal(globalPlace(widget, d->showType, x, y)));
}

void NoContentTipLabel::resetWidgetUiLanguage()
{
    const QString origin = property(kOriginText).toString();
    if (!origin.isEmpty())
        setOriginText(origin);
}

bool NoContentTipLabel::eventFilter(QObject *watched, QEvent *event)
{
    const bool resized = event->type() == QEvent::Resize;
    if (isVisible() && d->attachedWidget && (resized || event->type() == QEvent::Move)) {
        const bool parentResized = resized && watched == parentWidget();
        if (parentResized)
            takeWidthOf(d->attachedWidget);
        if (parentResized || watched == d->attachedWidget)
            resetPosition(d->attachedWidget, kFollowOffset.x(), kFollowOffset.y());
    }
    return QLabel::eventFilter(watched, event);
}

bool NoContentTipLabel::event(QEvent *event)
{
    if (event->type() == QEvent::ParentAboutToChange && parentWidget()
        && parentWidget() != d->attachedWidget)
        parentWidget()->removeEventFilter(this);
    else if (event->type() == QEvent::ParentChange && parentWidget())
        parentWidget()->installEventFilter(this);
    return QLabel::event(event);
}

void NoContentTipLabel::setOriginText(const QString &text)
{
    setProperty(kOriginText, text);
    setText(tr(text.toUtf8().constData()));
    fitHeight();
}

void NoContentTipLabel::takeWidthOf(const QWidget *widget)
{
    setFixedWidth(widget->width());
    fitHeight();
}

void NoContentTipLabel::fitHeight()
{
    // No layout gives the label its height, and a wrapped text must not be cut off.
    if (minimumWidth() != maximumWidth())
        return;
    ensurePolished();
    resize(width(), qMax(kMinimumHeight, heightForWidth(width())));
}
