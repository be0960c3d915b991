#include "recorddelegate.h"

#include <Vellum/CusItemDataRole>
#include <Vellum/CusSvgPushButton>
#include <Vellum/StyleDelegateComFun>

#include <QApplication>
#include <QMouseEvent>
#include <QPainter>
#include <QStyleOptionButton>

namespace {

constexpr QSize kButtonSize(20, 20);
constexpr int kMargin = 8;

} // namespace

RecordDelegate::RecordDelegate(QObject *parent)
    : TipStyleDelegate(parent)
    , m_button(std::make_unique<CusSvgPushButton>())
{
    // Never shown: the application's sheet gives it its looks by this name.
    m_button->setObjectName(QStringLiteral("client_recordButton"));
    setEnableMultiDelegate(true);
}

RecordDelegate::~RecordDelegate() = default;

void RecordDelegate::paint(QPainter *painter, const QStyleOptionViewItem &option,
                           const QModelIndex &index) const
{
    TipStyleDelegate::paint(painter, option, index);
    QStyleOptionViewItem cell = option;
    initStyleOption(&cell, index);

    QStyleOptionButton button;
    if (!calcItemPartRect(option.rect, DelegateIconPos_Right, kButtonSize, kMargin, button.rect))
        return;
    const bool recording = index.data(CusItemDataRole::RolePlaying).toBool();
    button.state = cell.state & (QStyle::State_Enabled | QStyle::State_Sunken);
    button.state |= recording ? QStyle::State_On : QStyle::State_Off;
    if (cursorInRect(option, button.rect))
        button.state |= QStyle::State_MouseOver;
    StyleDelegateComFun::drawSvgBtn(painter, &button, m_button.get(), QApplication::style(),
                                    CusSvgPushButton::DrawStype_Delegate);
    m_buttonRects.insert(index, button.rect);

    QList<TipDelegateInfo> tips{{button.rect, recording ? tr("Stop recording") : tr("Record")}};
    cell.rect.adjust(kMargin, 0, -kButtonSize.width() - 2 * kMargin, 0);
    if (!paintItemText(painter, cell, index))
        tips.append({cell.rect, index.data().toString()});
    addTipDeleteInfos(index, tips);
}

void RecordDelegate::clearPaintCusRectInfo()
{
    m_buttonRects.clear();
}

void RecordDelegate::dealIndexPressedStyleState(QStyleOptionViewItem *option,
                                                const QModelIndex &index) const
{
    if (cursorInRect(option, m_buttonRects.value(index)))
        option->state |= QStyle::State_Sunken;
}

bool RecordDelegate::editorEvent(QEvent *event, QAbstractItemModel *model,
                                 const QStyleOptionViewItem &option, const QModelIndex &index)
{
    const bool handled = TipStyleDelegate::editorEvent(event, model, option, index);
    if (event->type() != QEvent::MouseButtonRelease)
        return handled;
    const auto *mouse = static_cast<QMouseEvent *>(event);
    if (mouse->button() != Qt::LeftButton || !m_buttonRects.value(index).contains(mouse->pos()))
        return handled;
    Q_EMIT recordClicked(index);
    return true;
}

void RecordDelegate::initStyleOption(QStyleOptionViewItem *option, const QModelIndex &index) const
{
    TipStyleDelegate::initStyleOption(option, index);
    // paint() draws the text by itself.
    delStyleOptionStateAndFeature(option, QStyle::State_HasFocus, QStyleOptionViewItem::HasDisplay);
}
