#include "common/cusscrollhoverpane.h"
#include "common/cusuicommonfun.h"

#include <QPointer>
#include <QPushButton>
#include <QScrollArea>
#include <QScrollBar>
#include <QSplitter>
#include <QVariant>

#include <optional>

namespace {

constexpr int kSideMargin = 50;
constexpr int kEndMargin = 130;
constexpr int kFirstPane = 1;

int paneSize(qint64 size)
{
    return int(qBound<qint64>(0, size, QWIDGETSIZE_MAX));
}

QScrollArea *nearestScrollArea(const QWidget *widget)
{
    for (QWidget *parent = widget->parentWidget(); parent; parent = parent->parentWidget()) {
        if (auto *area = qobject_cast<QScrollArea *>(parent))
            return area;
    }
    return nullptr;
}

/// A cursor may claim any place; within a widget's largest size nothing overflows.
QRect keptInReach(const QRect &rect)
{
    const auto kept = [](int edge) { return qBound(-QWIDGETSIZE_MAX, edge, QWIDGETSIZE_MAX); };
    return {QPoint(kept(rect.left()), kept(rect.top())),
            QPoint(kept(rect.right()), kept(rect.bottom()))};
}

/// The text cursor of an input, else the whole widget, in the coordinates of \a content.
QRect focusRect(const QWidget *widget, const QWidget *content)
{
    const QVariant cursor = widget->inputMethodQuery(Qt::ImCursorRectangle);
    const QRect rect = cursor != widget->QWidget::inputMethodQuery(Qt::ImCursorRectangle)
        ? keptInReach(cursor.toRect())
        : widget->rect();
    return {widget->mapTo(content, rect.topLeft()), rect.size()};
}

QRect visibleRect(const QScrollArea *area)
{
    QRect rect(-area->widget()->pos(), area->viewport()->size());
    const QList<CusScrollHoverPane *> panes = area->findChildren<CusScrollHoverPane *>();
    for (const CusScrollHoverPane *pane : panes) {
        // A pane of another scroll area inside this one covers nothing of ours.
        if (pane->isVisible() && nearestScrollArea(pane) == area) {
            rect.setHeight(rect.height() - pane->height());
            break;
        }
    }
    return rect;
}

/// The range of one axis, end exclusive.
struct Span
{
    int begin;
    int end;

    int length() const { return end - begin; }
};

/// How far the content is to be scrolled along one axis; nothing where the focus is seen already.
std::optional<int> scrolledTo(Span focus, Span visible, int viewportLength)
{
    if (focus.length() > visible.length())
        return focus.begin + (focus.length() - visible.length()) / 2;
    if (focus.end > visible.end)
        return focus.end - viewportLength;
    if (focus.begin < visible.begin)
        return focus.begin;
    return std::nullopt;
}

} // namespace

QRect getWidgetGeometry(QWidget *widget, QWidget *ancestor)
{
    // Not isAncestorOf(), which ends at a window: a dialog's widgets have places in its parent,
    // too.
    const QWidget *parent = widget;
    while (parent && parent != ancestor)
        parent = parent->parentWidget();
    if (!parent)
        return {};
    return {widget->mapTo(ancestor, widget->pos()), widget->size()};
}

void adjustButtonWidthWithText(QPushButton *button, int minWidth, int maxWidth, int extra1,
                               int extra2)
{
    if (!button)
        return;
    button->ensurePolished();
    const QMargins margins = button->contentsMargins();
    const QString text = button->text();
    // The pixel more for each character keeps wide letters from touching the button's border.
    qint64 width = qint64(margins.left()) + margins.right() + text.size()
        + button->fontMetrics().horizontalAdvance(text) + extra1 + extra2;
    if (width <= minWidth)
        width = minWidth;
    else if (width > maxWidth)
        width = maxWidth;
    // QWIDGETSIZE_MAX itself would lift the limits of the width.
    button->setFixedWidth(int(qBound<qint64>(0, width, QWIDGETSIZE_MAX - 1)));
}

void adjustHorSplitterSize(QWidget *widget, QSplitter *splitter, int side, int size, int minSize)
{
    if (!widget || !splitter || minSize < 0)
        return;
    const QMargins margins = widget->contentsMargins();
    const qint64 available = qint64(widget->width()) - margins.right() - margins.left();
    const qint64 first = qMax<qint64>(side == kFirstPane ? size : available - size, minSize);
    const QList<int> sizes = splitter->sizes();
    if (sizes.size() == 2 && sizes.first() == first)
        return;
    splitter->setSizes({paneSize(first), paneSize(available - first)});
}

void ensureWidgetVisible(QWidget *widget)
{
    QScrollArea *area = widget ? nearestScrollArea(widget) : nullptr;
    const QWidget *content = area ? area->widget() : nullptr;
    if (!content || !content->isAncestorOf(widget))
        return;
    const QRect visible = visibleRect(area);
    const QRect focus = focusRect(widget, content);
    if (visible.contains(focus))
        return;

    const auto across =
        scrolledTo({focus.left() - kSideMargin, focus.right() + 1 + kSideMargin},
                   {visible.left(), visible.right() + 1}, area->viewport()->width());
    const auto down = scrolledTo({focus.top() - kEndMargin, focus.bottom() + 1 + kEndMargin},
                                 {visible.top(), visible.bottom() + 1}, area->viewport()->height());
    // A client that follows the scrolling may delete the area.
    const QPointer<QScrollBar> vertical = area->verticalScrollBar();
    if (across) {
        QScrollBar *horizontal = area->horizontalScrollBar();
        // In a right-to-left layout the bar counts from the content's right end.
        horizontal->setValue(area->isRightToLeft() ? horizontal->maximum() - *across : *across);
    }
    if (down && vertical)
        vertical->setValue(*down);
}
