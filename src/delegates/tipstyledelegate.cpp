#include "delegates/tipstyledelegate.h"

#include "common/painterguard.h"
#include "common/richpiece.h"
#include "common/richstring.h"
#include "common/saferect.h"
#include "delegates/basicdelegateeditor.h"
#include "delegates/celltext.h"
#include "delegates/paintwatch.h"
#include "delegates/styledelegatecomfun.h"
#include "delegates/svgtwin.h"
#include "labels/tooltiplabel.h"
#include "models/cusitemdatarole.h"

#include <QAbstractItemView>
#include <QCursor>
#include <QEvent>
#include <QGuiApplication>
#include <QHash>
#include <QHelpEvent>
#include <QPen>
#include <QPersistentModelIndex>
#include <QPointer>
#include <QWhatsThis>

namespace {

constexpr int kTipOffset = 30;

/// The colour in a role of \a index; what can't be converted is an invalid colour.
QColor toColor(const QVariant &value)
{
    // QColor prints a warning about a name that it doesn't know.
    if (value.type() == QVariant::String || value.type() == QVariant::ByteArray) {
        const QString name = value.toString();
        return QColor::isValidColor(name) ? QColor(name) : QColor();
    }
    return value.value<QColor>();
}

void writeColor(QStyleOptionViewItem *option, const QModelIndex &index, int role,
                QPalette::ColorRole colorRole)
{
    const QVariant value = index.data(role);
    if (value.isValid())
        option->palette.setBrush(colorRole, QBrush(toColor(value), Qt::SolidPattern));
}

void writeColors(QStyleOptionViewItem *option, const QModelIndex &index)
{
    using namespace CusItemDataRole;
    if (option->state & QStyle::State_MouseOver) {
        writeColor(option, index, RoleBgColorHover, QPalette::Highlight);
        writeColor(option, index, RoleTextColorActive, QPalette::HighlightedText);
    }
    // After the hover, so that the ground of a selected cell wins.
    if (option->state & QStyle::State_Selected) {
        writeColor(option, index, RoleBgColorSelected, QPalette::Highlight);
        writeColor(option, index, RoleTextColorActive, QPalette::HighlightedText);
    }
    writeColor(option, index, RoleBgColor, QPalette::Base);
    writeColor(option, index, RoleTextColor, QPalette::Text);
}

void drawTwin(QPainter *painter, QStyleOptionButton *option, QStyle *style, CusSvgPushButton *on,
              CusSvgPushButton *off)
{
    if (!option)
        return;
    CusSvgPushButton *twin = nullptr;
    if (option->state & QStyle::State_On)
        twin = on;
    else if (option->state & (QStyle::State_Off | QStyle::State_NoChange))
        twin = off;
    StyleDelegateComFun::drawSvgBtn(painter, option, twin, style,
                                    CusSvgPushButton::DrawStype_Delegate);
}

void drawPiece(QPainter *painter, const QRect &rect, const QFont &font,
               const vellum::RichPiece &piece)
{
    if (!painter || rect.isEmpty())
        return;
    const vellum::PainterGuard guard(painter);
    painter->setFont(font);
    if (piece.color.isValid())
        painter->setPen(piece.color);
    painter->drawText(rect, Qt::AlignLeft | Qt::AlignVCenter | Qt::TextSingleLine, piece.text);
}

} // namespace

TipDelegateInfo::TipDelegateInfo(const QRect &rect, const QString &text)
    : tipRect(rect)
    , tipText(text)
{
}

struct TipStyleDelegate::Private
{
    explicit Private(TipStyleDelegate *q)
        : paintWatch([this, q] {
            // Whether the held button is under the cursor is read while painting. The release may
            // have come beside all cells, where no delegate hears of it.
            if (pressedIndex.isValid() && QGuiApplication::mouseButtons() != Qt::NoButton)
                return false;
            tipInfos.clear();
            q->clearPaintCusRectInfo();
            return true;
        })
    {
        tipLabel.setTableTip(true);
    }

    QString tipTextAt(const QModelIndex &index, const QPoint &pos) const;
    void showTip(const QHelpEvent *event, const QAbstractItemView *view, const QRect &cell,
                 const QString &text);

    QHash<QModelIndex, QList<TipDelegateInfo>> tipInfos;
    vellum::TextBounds textBounds;
    vellum::PaintWatch paintWatch;
    ToolTipLabel tipLabel;
    QPointer<BasicDelegateEditor> delegateEditor;
    QPersistentModelIndex pressedIndex;
    int sizeHintHeight = 30;
    int curRowHover = -1;
    int hoverDrawRow = -1;
    int itemRowSpacing = 0;
    int itemColSpacing = 0;
    int editorHeight = 24;
    int itemMulTextSpacing = 6;
    bool enableMultiDelegate = false;
    bool enableOnerRowColsHover = false;
    bool enableColorfulText = false;
    const std::shared_ptr<CusSvgPushButton> checkedBtn =
        vellum::makeSvgTwin(QStringLiteral("btn_checkBoxChecked"));
    const std::shared_ptr<CusSvgPushButton> uncheckedBtn =
        vellum::makeSvgTwin(QStringLiteral("btn_checkBoxUnchecked"));
    const std::shared_ptr<CusSvgPushButton> radioCheckedBtn =
        vellum::makeSvgTwin(QStringLiteral("btn_radioChecked"));
    const std::shared_ptr<CusSvgPushButton> radioUncheckedBtn =
        vellum::makeSvgTwin(QStringLiteral("btn_radioUnChecked"));
};

TipStyleDelegate::TipStyleDelegate(QObject *parent)
    : QStyledItemDelegate(parent)
    , d(std::make_unique<Private>(this))
{
    d->delegateEditor = new BasicDelegateEditor(this);
}

TipStyleDelegate::~TipStyleDelegate() = default;

QString TipStyleDelegate::Private::tipTextAt(const QModelIndex &index, const QPoint &pos) const
{
    if (!enableMultiDelegate)
        return index.data(Qt::ToolTipRole).toString();
    const QList<TipDelegateInfo> infos = tipInfos.value(index);
    for (const TipDelegateInfo &info : infos) {
        if (info.tipRect.contains(pos))
            return info.tipText;
    }
    return QString();
}

void TipStyleDelegate::Private::showTip(const QHelpEvent *event, const QAbstractItemView *view,
                                        const QRect &cell, const QString &text)
{
    const QPoint corner = view->mapToGlobal(cell.topLeft()) + QPoint(0, kTipOffset);
    if (tipLabel.rectChanged(QRect(corner, cell.size())) || tipLabel.textChanged(text)) {
        tipLabel.updateSize(text);
        tipLabel.placeTip(event->globalPos());
    }
    // A view that goes takes its tip along.
    QObject::connect(view, &QObject::destroyed, &tipLabel, &QWidget::hide, Qt::UniqueConnection);
    if (!tipLabel.isVisible()) {
        tipLabel.showNormal();
        tipLabel.raise();
    }
}

void TipStyleDelegate::paint(QPainter *painter, const QStyleOptionViewItem &option,
                             const QModelIndex &index) const
{
    if (!painter)
        return;
    d->paintWatch.cellPainted(painter, option.widget, index);
    d->tipInfos.remove(index);
    QStyledItemDelegate::paint(painter, option, index);
    painter->setLayoutDirection(Qt::LayoutDirectionAuto);
}

QSize TipStyleDelegate::sizeHint(const QStyleOptionViewItem &option, const QModelIndex &index) const
{
    return {QStyledItemDelegate::sizeHint(option, index).width(), d->sizeHintHeight};
}

QWidget *TipStyleDelegate::createEditor(QWidget *parent, const QStyleOptionViewItem &option,
                                        const QModelIndex &index) const
{
    return d->delegateEditor ? d->delegateEditor->createEditor(parent, option, index) : nullptr;
}

void TipStyleDelegate::destroyEditor(QWidget *editor, const QModelIndex &index) const
{
    if (editor)
        QStyledItemDelegate::destroyEditor(editor, index);
    Q_EMIT const_cast<TipStyleDelegate *>(this)->signalEditorActive(false);
}

void TipStyleDelegate::setEditorData(QWidget *editor, const QModelIndex &index) const
{
    if (d->delegateEditor)
        d->delegateEditor->setEditorData(editor, index);
    Q_EMIT const_cast<TipStyleDelegate *>(this)->signalEditorActive(true);
}

void TipStyleDelegate::setModelData(QWidget *editor, QAbstractItemModel *model,
                                    const QModelIndex &index) const
{
    if (d->delegateEditor)
        d->delegateEditor->setModelData(editor, model, index);
}

void TipStyleDelegate::updateEditorGeometry(QWidget *editor, const QStyleOptionViewItem &option,
                                            const QModelIndex &index) const
{
    if (d->delegateEditor)
        d->delegateEditor->updateEditorGeometry(editor, option, index);
}

bool TipStyleDelegate::helpEvent(QHelpEvent *event, QAbstractItemView *view,
                                 const QStyleOptionViewItem &option, const QModelIndex &index)
{
    if (!event || !view || QWhatsThis::inWhatsThisMode())
        return false;
    if (event->type() == QEvent::ToolTip) {
        const QString text = d->tipTextAt(index, event->pos());
        if (!text.isEmpty())
            d->showTip(event, view, option.rect, text);
        else if (d->tipLabel.isVisible()) // hiding a hidden tip would take the global one along
            d->tipLabel.hide();
        if (!d->enableMultiDelegate)
            return true;
    }
    return QStyledItemDelegate::helpEvent(event, view, option, index);
}

void TipStyleDelegate::clearPaintCusRectInfo() { }

void TipStyleDelegate::dealIndexPressedStyleState(QStyleOptionViewItem *, const QModelIndex &) const
{
}

void TipStyleDelegate::addTipDeleteInfo(const QModelIndex &index, const TipDelegateInfo &info) const
{
    addTipDeleteInfos(index, {info});
}

void TipStyleDelegate::addTipDeleteInfos(const QModelIndex &index,
                                         const QList<TipDelegateInfo> &infos) const
{
    if (index.isValid())
        d->tipInfos.insert(index, infos);
}

void TipStyleDelegate::cleanMousePressedIndex()
{
    d->pressedIndex = QPersistentModelIndex();
}

bool TipStyleDelegate::cursorInRect(const QStyleOptionViewItem &option, const QRect &rect) const
{
    const auto *view = qobject_cast<const QAbstractItemView *>(option.widget);
    return view && view->viewport()
        && rect.contains(view->viewport()->mapFromGlobal(QCursor::pos()));
}

bool TipStyleDelegate::cursorInRect(QStyleOptionViewItem *option, const QRect &rect) const
{
    return option && cursorInRect(*option, rect);
}

void TipStyleDelegate::setCustomDelegateEditor(BasicDelegateEditor *editor)
{
    if (!editor || editor == d->delegateEditor)
        return;
    // Later, since an editor may stand in the middle of its own call.
    if (d->delegateEditor)
        d->delegateEditor->deleteLater();
    editor->setParent(this);
    d->delegateEditor = editor;
}

BasicDelegateEditor *TipStyleDelegate::getCustomDelegateEditor() const
{
    return d->delegateEditor;
}

void TipStyleDelegate::setEnableMultiDelegate(bool enable)
{
    d->enableMultiDelegate = enable;
}

bool TipStyleDelegate::getEnableMultiDelegate() const
{
    return d->enableMultiDelegate;
}

void TipStyleDelegate::setSizeHintHeight(int height)
{
    if (height > 0)
        d->sizeHintHeight = height;
}

int TipStyleDelegate::getSizeHintHeight() const
{
    return d->sizeHintHeight;
}

void TipStyleDelegate::setEnableOnerRowColsHover(bool enable)
{
    d->enableOnerRowColsHover = enable;
}

bool TipStyleDelegate::getEnableOnerRowColsHover() const
{
    return d->enableOnerRowColsHover;
}

void TipStyleDelegate::setCurRowHover(int row)
{
    d->curRowHover = row;
}

int TipStyleDelegate::getCurRowHover() const
{
    return d->curRowHover;
}

void TipStyleDelegate::setHoverDrawRow(int row) const
{
    d->hoverDrawRow = row;
}

int TipStyleDelegate::getHoverDrawRow() const
{
    return d->hoverDrawRow;
}

void TipStyleDelegate::setItemRowSpacing(int spacing)
{
    d->itemRowSpacing = qMax(0, spacing);
}

int TipStyleDelegate::getItemRowSpacing() const
{
    return d->itemRowSpacing;
}

void TipStyleDelegate::setItemColSpacing(int spacing)
{
    d->itemColSpacing = qMax(0, spacing);
}

int TipStyleDelegate::getItemColSpacing() const
{
    return d->itemColSpacing;
}

void TipStyleDelegate::setItemMulTextSpacing(int spacing)
{
    if (spacing >= 0)
        d->itemMulTextSpacing = spacing;
}

int TipStyleDelegate::getItemMulTextSpacing() const
{
    return d->itemMulTextSpacing;
}

void TipStyleDelegate::setEditorHeight(int height)
{
    d->editorHeight = height;
}

int TipStyleDelegate::getEditorHeight() const
{
    return d->editorHeight;
}

void TipStyleDelegate::setEnableColorfulText(bool enable)
{
    d->enableColorfulText = enable;
}

bool TipStyleDelegate::getEnableColorfulText() const
{
    return d->enableColorfulText;
}

bool TipStyleDelegate::editorEvent(QEvent *event, QAbstractItemModel *model,
                                   const QStyleOptionViewItem &option, const QModelIndex &index)
{
    if (!event || !model)
        return false;
    if (event->type() == QEvent::MouseButtonPress)
        d->pressedIndex = index;
    else if (event->type() == QEvent::MouseButtonRelease)
        d->pressedIndex = QPersistentModelIndex();
    return QStyledItemDelegate::editorEvent(event, model, option, index);
}

void TipStyleDelegate::initStyleOption(QStyleOptionViewItem *option, const QModelIndex &index) const
{
    if (!option)
        return;
    QStyledItemDelegate::initStyleOption(option, index);
    if (d->curRowHover >= 0 && index.row() == d->curRowHover)
        option->state |= QStyle::State_MouseOver;
    if (option->state & QStyle::State_MouseOver)
        d->hoverDrawRow = index.row();
    if (d->enableColorfulText) {
        delStyleOptionStateAndFeature(option, QStyle::State_None, QStyleOptionViewItem::HasDisplay);
        writeColors(option, index);
    }
    option->state &= ~QStyle::State_Sunken;
    if (index.isValid() && d->pressedIndex == index)
        dealIndexPressedStyleState(option, index);
}

void TipStyleDelegate::delStyleOptionStateAndFeature(
    QStyleOptionViewItem *option, QStyle::State state,
    QStyleOptionViewItem::ViewItemFeatures features) const
{
    if (!option)
        return;
    option->state &= ~state;
    option->features &= ~features;
    if (features & QStyleOptionViewItem::HasDisplay)
        option->text.clear();
}

void TipStyleDelegate::drawSvgCheckBox(QPainter *painter, QStyleOptionButton *option,
                                       QStyle *style) const
{
    drawTwin(painter, option, style, d->checkedBtn.get(), d->uncheckedBtn.get());
}

void TipStyleDelegate::drawSvgRadioBtn(QPainter *painter, QStyleOptionButton *option,
                                       QStyle *style) const
{
    drawTwin(painter, option, style, d->radioCheckedBtn.get(), d->radioUncheckedBtn.get());
}

QRect TipStyleDelegate::textBoundingRect(const QString &text, const QFont &font,
                                         const QWidget *widget) const
{
    QRect rect = d->textBounds(text, font);
    rect.setWidth(rect.width() + 2 * vellum::cellTextMargin(widget));
    return rect;
}

QString TipStyleDelegate::textElidedText(const QString &text,
                                         const QStyleOptionViewItem &option) const
{
    const QFontMetrics metrics(option.font);
    const int width = option.rect.width();
    const QString start = vellum::wideStart(text, metrics, width);
    // Meant: the margins count where it is asked whether the text fits, but not in the cut.
    if (textBoundingRect(start, option.font, option.widget).width() <= width)
        return text;
    return metrics.elidedText(start, Qt::ElideRight, width);
}

bool TipStyleDelegate::paintItemText(QPainter *painter, const QStyleOptionViewItem &option,
                                     const QModelIndex &index) const
{
    if (!d->enableColorfulText)
        return drawLine(painter, option, option, nullptr, index);
    QStyleOptionViewItem look = option;
    initStyleOption(&look, index);
    const bool active = look.state & (QStyle::State_Selected | QStyle::State_MouseOver);
    const QPen pen(look.palette.color(active ? QPalette::HighlightedText : QPalette::Text));
    return drawLine(painter, option, look, &pen, index);
}

bool TipStyleDelegate::drawLine(QPainter *painter, const QStyleOptionViewItem &option,
                                const QStyleOptionViewItem &look, const QPen *pen,
                                const QModelIndex &index) const
{
    const QString text = look.text.isEmpty() ? index.data(Qt::DisplayRole).toString() : look.text;
    const QString shown = textElidedText(text, option);
    if (painter && !look.rect.isEmpty()) {
        const vellum::PainterGuard guard(painter);
        painter->setFont(option.font);
        if (pen)
            painter->setPen(*pen);
        painter->drawText(look.rect, int(look.displayAlignment) | Qt::TextSingleLine, shown);
    }
    return shown == text;
}

bool TipStyleDelegate::paintItemMulText(QPainter *painter, const QStyleOptionViewItem &option,
                                        const QModelIndex &index) const
{
    const auto pieces = index.data(Qt::DisplayRole).value<QList<RichString>>();
    const int margins = 2 * vellum::cellTextMargin(option.widget);
    const qint64 end = qint64(option.rect.x()) + option.rect.width();
    QRect remaining = option.rect;
    for (const RichString &rich : pieces) {
        vellum::RichPiece piece = vellum::richPiece(rich);
        QFont font = option.font;
        font.setPixelSize(piece.pixelSize);
        const QFontMetrics metrics(font);
        const QString start = vellum::wideStart(piece.text, metrics, remaining.width());
        const int width = metrics.boundingRect(start).width();
        const bool cut = remaining.width() <= qint64(width) + margins;
        if (cut)
            piece.text = metrics.elidedText(start, Qt::ElideRight, remaining.width());
        drawPiece(painter, remaining, font, piece);
        if (cut)
            return true;
        const qint64 x = qint64(remaining.x()) + width + d->itemMulTextSpacing;
        remaining = vellum::safeRect(x, remaining.y(), end - x, remaining.height());
    }
    return false;
}
