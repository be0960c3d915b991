#include "delegates/expandstyledelegate.h"

#include "common/saferect.h"
#include "delegates/styledelegatecomfun.h"
#include "delegates/svgtwin.h"
#include "models/cusitemdatarole.h"

#include <QApplication>
#include <QHash>
#include <QMouseEvent>
#include <QPersistentModelIndex>
#include <QPointer>
#include <QStyleOptionButton>

struct ExpandStyleDelegate::Private
{
    explicit Private(bool arrowRight)
        : unexpandedBtn(vellum::makeSvgTwin(arrowRight
                                                ? QStringLiteral("pushBtn_nodeIconUnexpanded")
                                                : QStringLiteral("pushBtn_nodeIconUnexpandedLeft")))
    {
    }

    const std::shared_ptr<CusSvgPushButton> expandedBtn =
        vellum::makeSvgTwin(QStringLiteral("pushBtn_nodeIconExpanded"));
    const std::shared_ptr<CusSvgPushButton> unexpandedBtn;
    QSize iconSize{16, 16};
    QHash<QModelIndex, QRect> expandRects;
};

ExpandStyleDelegate::ExpandStyleDelegate(QObject *parent, bool arrowRight)
    : TipStyleDelegate(parent)
    , d(std::make_unique<Private>(arrowRight))
{
}

ExpandStyleDelegate::~ExpandStyleDelegate() = default;

void ExpandStyleDelegate::clearPaintCusRectInfo()
{
    d->expandRects.clear();
}

TipDelegateInfo ExpandStyleDelegate::paintExpand(QPainter *painter,
                                                 const QStyleOptionButton &option,
                                                 const QModelIndex &index) const
{
    if (!painter || !index.data(CusItemDataRole::RoleHasChildren).toBool()) {
        d->expandRects.remove(index);
        return {};
    }
    QStyleOptionButton icon;
    icon.state = option.state;
    const qint64 y = option.rect.y() + (qint64(option.rect.height()) - d->iconSize.height()) / 2;
    icon.rect = vellum::safeRect(option.rect.x(), y, d->iconSize.width(), d->iconSize.height());
    const bool expanded = index.data(CusItemDataRole::RoleExpanded).toBool();
    d->expandRects.insert(index, option.rect);
    StyleDelegateComFun::drawSvgBtn(painter, &icon,
                                    expanded ? d->expandedBtn.get() : d->unexpandedBtn.get(),
                                    QApplication::style(), CusSvgPushButton::DrawStype_Delegate);
    return {icon.rect, expanded ? tr("Collapse") : tr("Expand")};
}

void ExpandStyleDelegate::setExpandIconSize(const QSize &size)
{
    if (size.isValid())
        d->iconSize = size;
}

QSize ExpandStyleDelegate::expandIconSize() const
{
    return d->iconSize;
}

bool ExpandStyleDelegate::editorEvent(QEvent *event, QAbstractItemModel *model,
                                      const QStyleOptionViewItem &option, const QModelIndex &index)
{
    if (!event || event->type() != QEvent::MouseButtonPress)
        return TipStyleDelegate::editorEvent(event, model, option, index);
    const auto *mouse = static_cast<QMouseEvent *>(event);
    if (mouse->button() != Qt::LeftButton || !d->expandRects.value(index).contains(mouse->pos()))
        return TipStyleDelegate::editorEvent(event, model, option, index);

    // What the client does with the signal may reset the model, or delete model, view or delegate.
    const QPersistentModelIndex row(index);
    const QPointer<ExpandStyleDelegate> alive(this);
    const QPointer<const QWidget> view(option.widget);
    const bool expanded = index.data(CusItemDataRole::RoleExpanded).toBool();
    Q_EMIT signalCusIndexExpandState(index, !expanded);
    if (!alive || !row.isValid() || view.data() != option.widget)
        return true;
    return TipStyleDelegate::editorEvent(event, model, option, row);
}
