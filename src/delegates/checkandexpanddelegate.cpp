#include "delegates/checkandexpanddelegate.h"

#include "buttons/cuscheckbox.h"
#include "common/saferect.h"
#include "delegates/styledelegatecomfun.h"

#include <QAbstractItemModel>
#include <QApplication>
#include <QHash>
#include <QMouseEvent>
#include <QPersistentModelIndex>
#include <QPointer>
#include <QStyleOptionButton>

namespace {

constexpr int kLeastHeight = 30;

bool isMouseEvent(const QEvent *event)
{
    switch (event->type()) {
    case QEvent::MouseButtonPress:
    case QEvent::MouseButtonRelease:
    case QEvent::MouseButtonDblClick:
    case QEvent::MouseMove:
        return true;
    default:
        return false;
    }
}

QStyle::State checkState(int value)
{
    if (value == Qt::Checked)
        return QStyle::State_On;
    return value == Qt::PartiallyChecked ? QStyle::State_NoChange : QStyle::State_Off;
}

} // namespace

struct CheckAndExpandDelegate::Private
{
    /// The places of a row's parts; an invalid box where the row has none.
    struct Layout
    {
        QRect box;
        QRect text;
        QRect arrow;
    };

    Layout layout(const QRect &cell, bool hasCheck, int arrowWidth) const;

    CusCheckBox checkBox{nullptr};
    QSize checkBoxSize{14, 14};
    int spacing = 5;
    int leftMargin = 5;
    QHash<QModelIndex, QRect> checkRects;
    QHash<QModelIndex, QRect> rowExpandRects;
};

CheckAndExpandDelegate::Private::Layout
CheckAndExpandDelegate::Private::layout(const QRect &cell, bool hasCheck, int arrowWidth) const
{
    Layout parts;
    qint64 x = cell.x();
    if (hasCheck
        && calcItemPartRect(cell, DelegateIconPos_Left, checkBoxSize, leftMargin, parts.box))
        x += qint64(leftMargin) + spacing + checkBoxSize.width();
    const qint64 right = qint64(cell.x()) + cell.width() - leftMargin;
    parts.arrow = vellum::safeRect(right - arrowWidth, cell.y(), arrowWidth, cell.height());
    parts.text = vellum::safeRect(x, cell.y(), right - arrowWidth - spacing - x, cell.height());
    return parts;
}

CheckAndExpandDelegate::CheckAndExpandDelegate(QObject *parent)
    : ExpandStyleDelegate(parent, true)
    , d(std::make_unique<Private>())
{
    // Or queued connections to the signal would fail.
    qRegisterMetaType<Qt::CheckState>();
    d->checkBox.setObjectName(QStringLiteral("checkBox_checkItem"));
}

CheckAndExpandDelegate::~CheckAndExpandDelegate() = default;

void CheckAndExpandDelegate::paint(QPainter *painter, const QStyleOptionViewItem &option,
                                   const QModelIndex &index) const
{
    if (!painter)
        return;
    ExpandStyleDelegate::paint(painter, option, index);
    QStyleOptionViewItem cell = option;
    initStyleOption(&cell, index);
    const QVariant check = index.data(Qt::CheckStateRole);
    const Private::Layout parts = d->layout(option.rect, check.isValid(), expandIconSize().width());

    QList<TipDelegateInfo> tips;
    QStyleOptionButton button;
    button.state = cell.state;
    if (parts.box.isValid()) {
        button.rect = parts.box;
        button.state &= ~(QStyle::State_HasFocus | QStyle::State_Off | QStyle::State_NoChange
                          | QStyle::State_On);
        button.state |= QStyle::State_Enabled | checkState(check.toInt());
        drawSvgCheckBox(painter, &button, QApplication::style());
        d->checkRects.insert(index, parts.box);
    } else {
        d->checkRects.remove(index);
    }

    button.rect = parts.arrow;
    button.state = cell.state;
    const TipDelegateInfo arrowTip = paintExpand(painter, button, index);
    if (!arrowTip.tipText.isEmpty())
        tips.append(arrowTip);
    d->rowExpandRects.insert(index, parts.arrow);

    cell.rect = parts.text;
    cell.text = index.data(Qt::DisplayRole).toString();
    if (!paintItemText(painter, cell, index))
        tips.append({parts.text, cell.text});
    addTipDeleteInfos(index, tips);
}

QSize CheckAndExpandDelegate::sizeHint(const QStyleOptionViewItem &option,
                                       const QModelIndex &index) const
{
    const QSize size = ExpandStyleDelegate::sizeHint(option, index);
    return {size.width(), qMax(kLeastHeight, size.height())};
}

void CheckAndExpandDelegate::clearPaintCusRectInfo()
{
    ExpandStyleDelegate::clearPaintCusRectInfo();
    d->checkRects.clear();
    d->rowExpandRects.clear();
}

void CheckAndExpandDelegate::setCheckBoxSize(const QSize &size)
{
    if (size.isValid())
        d->checkBoxSize = size;
}

QSize CheckAndExpandDelegate::getCheckBoxSize() const
{
    return d->checkBoxSize;
}

void CheckAndExpandDelegate::setSpacing(int spacing)
{
    if (spacing >= 0)
        d->spacing = spacing;
}

int CheckAndExpandDelegate::getSpacing() const
{
    return d->spacing;
}

void CheckAndExpandDelegate::setLeftMargin(int margin)
{
    d->leftMargin = margin;
}

int CheckAndExpandDelegate::getLeftMargin() const
{
    return d->leftMargin;
}

/// Whether \a event is a left press beside the arrow of a row that was painted.
bool CheckAndExpandDelegate::togglesAt(const QEvent *event, const QModelIndex &index) const
{
    if (event->type() != QEvent::MouseButtonPress)
        return false;
    const auto *mouse = static_cast<const QMouseEvent *>(event);
    const auto arrow = d->rowExpandRects.constFind(index);
    return mouse->button() == Qt::LeftButton && arrow != d->rowExpandRects.constEnd()
        && !arrow->contains(mouse->pos()) && index.data(Qt::CheckStateRole).isValid();
}

bool CheckAndExpandDelegate::editorEvent(QEvent *event, QAbstractItemModel *model,
                                         const QStyleOptionViewItem &option,
                                         const QModelIndex &index)
{
    if (!event || !model || !index.isValid() || !isMouseEvent(event))
        return ExpandStyleDelegate::editorEvent(event, model, option, index);
    if (event->type() == QEvent::MouseButtonDblClick)
        return true;
    if (!togglesAt(event, index))
        return ExpandStyleDelegate::editorEvent(event, model, option, index);

    // The model may reset itself at the change, and its index is dead then; the client may do
    // worse.
    const QPersistentModelIndex row(index);
    const QPointer<CheckAndExpandDelegate> alive(this);
    const QPointer<const QWidget> view(option.widget);
    const bool wasChecked = index.data(Qt::CheckStateRole).toInt() == Qt::Checked;
    const Qt::CheckState state = wasChecked ? Qt::Unchecked : Qt::Checked;
    model->setData(index, state, Qt::CheckStateRole);
    if (alive)
        Q_EMIT signalDelegateChekcChanged(state, row);
    if (!alive || !row.isValid() || view.data() != option.widget)
        return true;
    return ExpandStyleDelegate::editorEvent(event, model, option, row);
}

void CheckAndExpandDelegate::initStyleOption(QStyleOptionViewItem *option,
                                             const QModelIndex &index) const
{
    if (!option)
        return;
    ExpandStyleDelegate::initStyleOption(option, index);
    QStyleOptionViewItem::ViewItemFeatures features = QStyleOptionViewItem::HasDisplay;
    const QVariant check = index.data(Qt::CheckStateRole);
    if (check.isValid() && !check.isNull())
        features |= QStyleOptionViewItem::HasCheckIndicator;
    delStyleOptionStateAndFeature(option, QStyle::State_HasFocus, features);
}
