#include "labels/cusmenu.h"

#include "buttons/cussvgaction.h"
#include "buttons/cussvgpushbutton.h"
#include "common/painterguard.h"
#include "common/saferect.h"
#include "delegates/styledelegatecomfun.h"
#include "delegates/svgtwin.h"
#include "labels/tooltiplabel.h"

#include <QHelpEvent>
#include <QPaintEvent>
#include <QPainter>
#include <QPointer>
#include <QScopedValueRollback>
#include <QStyleOptionMenuItem>
#include <QWidgetAction>

#include <algorithm>
#include <tuple>

namespace {

constexpr int kMinimumWidth = 180;
constexpr int kMaximumWidth = 400;
constexpr int kShortcutSpace = 10;

QRect centredInHeight(const QRect &row, qint64 x, const QSize &size)
{
    return vellum::safeRect(x, qint64(row.y()) + (row.height() - size.height()) / 2, size.width(),
                            size.height());
}

/// The text of a row and, behind it, its shortcut.
std::pair<QString, QString> splitTexts(const QAction *action)
{
    QString text = action->text();
    if (!action->isShortcutVisibleInContextMenu())
        return {text, QString()};
    const QKeySequence shortcut = action->shortcut();
    if (!shortcut.isEmpty())
        return {text, shortcut.toString(QKeySequence::NativeText)};
    const int tab = text.indexOf(QLatin1Char('\t'));
    if (tab <= 0)
        return {text, QString()};
    return {text.left(tab), text.mid(tab + 1)};
}

} // namespace

struct CusMenu::Private
{
    QSize iconSize{16, 16};
    int leftActionMargin = 8;
    int rightActionMargin = 10;
    int iconTextSpace = 6;
    QSize svgActionSize{20, 20};
    int menuWidth = kMinimumWidth;
    std::shared_ptr<CusSvgPushButton> checkedBtn =
        vellum::makeSvgTwin(QStringLiteral("btn_menuCheckBoxChecked"));
    std::shared_ptr<CusSvgPushButton> uncheckedBtn =
        vellum::makeSvgTwin(QStringLiteral("btn_checkBoxUnchecked"));
    std::shared_ptr<CusSvgPushButton> arrowRightBtn =
        vellum::makeSvgTwin(QStringLiteral("btn_menuArrowRight"));
    std::shared_ptr<CusSvgPushButton> arrowDownBtn =
        vellum::makeSvgTwin(QStringLiteral("btn_menuArrowDown"));
    std::shared_ptr<CusSvgPushButton> iconBtn = vellum::makeSvgTwin(QStringLiteral("btn_menuIcon"));
    QMap<QAction *, bool> elidedActions; // by the last paint of each row
    const QAction *takingTip = nullptr;
};

/// Where the parts of one row stand; text and arrow columns are kept free in every row.
struct CusMenu::RowLayout
{
    QRect checkMark;
    QRect svgIcon;
    QRect arrow;
    QRect shortcut;
    QRect text;
    QString shownText;
    QString shownShortcut;
};

CusMenu::CusMenu(const QString &title, QWidget *parent)
    : QMenu(title, parent)
    , d(std::make_unique<Private>())
{
    setToolTipsVisible(true);
    setWindowFlags(windowFlags() | Qt::FramelessWindowHint | Qt::NoDropShadowWindowHint);
    setAttribute(Qt::WA_TranslucentBackground);
    setMinimumWidth(kMinimumWidth);
    setMaximumWidth(kMaximumWidth);
}

CusMenu::CusMenu(QWidget *parent)
    : CusMenu(QString(), parent)
{
}

CusMenu::~CusMenu() = default;

QAction *CusMenu::addAction(const QIcon &icon, const QString &text)
{
    QAction *action = QMenu::addAction(icon, text);
    widenFor(action);
    return action;
}

QAction *CusMenu::addAction(const QIcon &icon, const QString &text, const QObject *receiver,
                            const char *member, const QKeySequence &shortcut)
{
    QAction *action = nullptr;
    if (receiver && member) {
        action = QMenu::addAction(icon, text, receiver, member, shortcut);
    } else {
        action = QMenu::addAction(icon, text);
        action->setShortcut(shortcut);
    }
    widenFor(action);
    return action;
}

QAction *CusMenu::addAction(const QString &text)
{
    QAction *action = QMenu::addAction(text);
    widenFor(action);
    return action;
}

void CusMenu::addAction(QAction *action)
{
    if (!action)
        return;
    QMenu::addAction(action);
    widenFor(action);
}

void CusMenu::addActions(const QList<QAction *> &actions)
{
    for (QAction *action : actions)
        addAction(action);
}

QAction *CusMenu::addMenu(QMenu *menu)
{
    if (!menu)
        return nullptr;
    QAction *action = QMenu::addMenu(menu);
    action->setText(menu->title());
    widenFor(action);
    return action;
}

QMenu *CusMenu::addMenu(const QIcon &icon, const QString &title)
{
    QMenu *menu = QMenu::addMenu(icon, title);
    menu->menuAction()->setText(title);
    widenFor(menu->menuAction());
    return menu;
}

QMenu *CusMenu::addMenu(const QString &title)
{
    QMenu *menu = QMenu::addMenu(title);
    menu->menuAction()->setText(title);
    widenFor(menu->menuAction());
    return menu;
}

void CusMenu::setLeftActionMargin(int margin)
{
    d->leftActionMargin = margin;
    update();
}

int CusMenu::getLeftActionMargin() const
{
    return d->leftActionMargin;
}

void CusMenu::setRightActionMargin(int margin)
{
    d->rightActionMargin = margin;
    update();
}

int CusMenu::getRightActionMargin() const
{
    return d->rightActionMargin;
}

int CusMenu::getActionWidth(const QAction *action) const
{
    if (!action)
        return 0;
    QStyleOptionMenuItem option;
    initStyleOption(&option, action);
    const QFontMetrics metrics(option.font);
    qint64 width = qint64(d->leftActionMargin) + d->iconSize.width() + d->iconTextSpace
        + metrics.boundingRect(action->text()).width() + d->iconSize.width() + d->rightActionMargin;
    const QKeySequence shortcut = action->shortcut();
    if (action->isShortcutVisibleInContextMenu() && !shortcut.isEmpty()) {
        width += kShortcutSpace
            + metrics.boundingRect(shortcut.toString(QKeySequence::NativeText)).width();
    }
    return vellum::safeExtent(width);
}

int CusMenu::getMenuMaxWidth() const
{
    int widest = 0;
    const QList<QAction *> all = actions();
    for (const QAction *action : all)
        widest = qMax(widest, getActionWidth(action));
    return widest;
}

void CusMenu::widenFor(const QAction *action)
{
    d->menuWidth = qMax(d->menuWidth, getActionWidth(action));
    if (maximumWidth() > 0)
        d->menuWidth = qMin(d->menuWidth, maximumWidth());
    setMinimumWidth(d->menuWidth);
}

// Overridden, though they only forward: a later release can act here without a change of the binary
// interface.
QSize CusMenu::sizeHint() const
{
    return QMenu::sizeHint();
}

void CusMenu::mouseMoveEvent(QMouseEvent *event)
{
    QMenu::mouseMoveEvent(event);
}

QMargins CusMenu::frameMargins() const
{
    const int panel = style()->pixelMetric(QStyle::PM_MenuPanelWidth, nullptr, this);
    const int across = panel + style()->pixelMetric(QStyle::PM_MenuHMargin, nullptr, this);
    const int down = panel + style()->pixelMetric(QStyle::PM_MenuVMargin, nullptr, this);
    return {across, down, across, down};
}

QRect CusMenu::rowRect(QAction *action) const
{
    QRect row = actionGeometry(action);
    // Qt makes the rows as wide as the widest text, also where the menu may not be.
    row.setRight(qMin(row.right(), rect().marginsRemoved(frameMargins()).right()));
    return row;
}

QRect CusMenu::rowsArea() const
{
    QRect area = rect();
    const QList<QAction *> all = actions();
    const auto visible = [](const QAction *action) { return action->isVisible(); };
    const auto first = std::find_if(all.begin(), all.end(), visible);
    if (first == all.end())
        return area;
    // A menu that is higher than the screen scrolls; the rows then end at its arrows.
    const auto last = std::find_if(all.rbegin(), all.rend(), visible);
    const QRect inner = area.marginsRemoved(frameMargins());
    const int scroller = style()->pixelMetric(QStyle::PM_MenuScrollerHeight, nullptr, this);
    if (actionGeometry(*first).top() < 0)
        area.setTop(inner.top() + scroller);
    if (actionGeometry(*last).bottom() >= height())
        area.setBottom(inner.bottom() - scroller);
    return area;
}

bool CusMenu::holdsWidget(const QRect &row) const
{
    const QObjectList &all = children();
    return std::any_of(all.begin(), all.end(), [&row](const QObject *child) {
        const auto *widget = qobject_cast<const QWidget *>(child);
        return widget && !widget->isWindow() && widget->geometry().intersects(row);
    });
}

void CusMenu::paintEvent(QPaintEvent *event)
{
    QMenu::paintEvent(event);
    QPainter painter(this);
    painter.setLayoutDirection(layoutDirection());
    painter.setClipRect(rowsArea());
    const QList<QAction *> all = actions();
    for (QAction *action : all)
        paintAction(&painter, action, event);
}

void CusMenu::paintAction(QPainter *painter, QAction *action, QPaintEvent *event)
{
    if (!painter || !action || !event)
        return;
    const QRect row = rowRect(action);
    if (!row.intersects(event->rect()))
        return;
    // The widget of the row draws itself.
    if (qobject_cast<QWidgetAction *>(action) && holdsWidget(row))
        return;
    QStyleOptionMenuItem option;
    initStyleOption(&option, action);
    option.rect = row;
    const int overrun = actionGeometry(action).right() - row.right();
    if (overrun > 0)
        drawEdge(painter, row.adjusted(row.width(), 0, overrun, 0));
    const RowLayout layout = layoutRow(option, action);
    drawGround(painter, option, action);
    drawMarks(painter, option, layout, action);
    drawTexts(painter, option, layout, action);
}

CusMenu::RowLayout CusMenu::layoutRow(const QStyleOptionMenuItem &option, QAction *action) const
{
    const QRect &rect = option.rect;
    const qint64 left = qint64(rect.x()) + d->leftActionMargin;
    const qint64 right = qint64(rect.x()) + rect.width() - d->rightActionMargin;
    const qint64 textLeft = left + d->iconSize.width() + d->iconTextSpace;
    qint64 textRight = right - d->iconSize.width() - d->iconTextSpace;
    const QFontMetrics metrics(option.font);

    RowLayout row;
    row.checkMark = centredInHeight(rect, left, d->iconSize);
    row.svgIcon = centredInHeight(rect, left, d->svgActionSize);
    row.arrow = centredInHeight(rect, right - d->iconSize.width(), d->iconSize);
    std::tie(row.shownText, row.shownShortcut) = splitTexts(action);
    if (!row.shownShortcut.isEmpty()) {
        const int width = metrics.boundingRect(row.shownShortcut).width();
        row.shortcut = vellum::safeRect(textRight - width, rect.y(), width, rect.height());
        textRight -= width + kShortcutSpace;
    }
    row.text = vellum::safeRect(textLeft, rect.y(), textRight - textLeft, rect.height());
    return row;
}

void CusMenu::drawEdge(QPainter *painter, const QRect &strip)
{
    // What the base painted of a row that is wider than the menu, over the menu's frame.
    const vellum::PainterGuard guard(painter);
    painter->setClipRect(strip, Qt::IntersectClip);
    QStyleOptionMenuItem panel;
    panel.initFrom(this);
    panel.state = QStyle::State_None;
    panel.checkType = QStyleOptionMenuItem::NotCheckable;
    style()->drawPrimitive(QStyle::PE_PanelMenu, &panel, painter, this);
    QStyleOptionFrame frame;
    frame.initFrom(this);
    frame.state = QStyle::State_None;
    frame.lineWidth = style()->pixelMetric(QStyle::PM_MenuPanelWidth, nullptr, this);
    style()->drawPrimitive(QStyle::PE_FrameMenu, &frame, painter, this);
}

void CusMenu::drawGround(QPainter *painter, const QStyleOptionMenuItem &option,
                         const QAction *action)
{
    {
        const vellum::PainterGuard guard(painter);
        painter->setPen(Qt::NoPen);
        painter->setBrush(palette().brush(QPalette::Button));
        painter->drawRect(option.rect);
    }
    QStyleOptionMenuItem ground = option;
    ground.text.clear();
    ground.checkType = QStyleOptionMenuItem::NonExclusive;
    ground.checked = false;
    if (action->menu())
        ground.menuItemType = QStyleOptionMenuItem::Normal;
    style()->drawControl(QStyle::CE_MenuItem, &ground, painter, this);
}

void CusMenu::drawMarks(QPainter *painter, const QStyleOptionMenuItem &option, const RowLayout &row,
                        const QAction *action)
{
    QStyleOptionButton button;
    button.initFrom(this);
    const auto stamp = [&](CusSvgPushButton *twin, const QRect &rect, QStyle::State state) {
        button.rect = rect;
        button.state = state;
        StyleDelegateComFun::drawSvgBtn(painter, &button, twin, style(),
                                        CusSvgPushButton::DrawStype_Delegate);
    };
    const QStyle::State state = option.state & ~QStyle::State_HasFocus;
    if (option.checked)
        stamp(d->checkedBtn.get(), row.checkMark, state | QStyle::State_Enabled | QStyle::State_On);
    if (const auto *svgAction = qobject_cast<const CusSvgAction *>(action))
        stamp(svgAction->getSvgActionBtn(), row.svgIcon, state | QStyle::State_Enabled);
    if (action->menu()) {
        // The open branch of a mirrored menu points down, as clients' sheets have it.
        const bool mirrored = option.direction == Qt::RightToLeft;
        stamp((mirrored ? d->arrowDownBtn : d->arrowRightBtn).get(), row.arrow, state);
    }
}

void CusMenu::drawTexts(QPainter *painter, const QStyleOptionMenuItem &option, const RowLayout &row,
                        QAction *action)
{
    const vellum::PainterGuard guard(painter);
    painter->setBrush(option.palette.brush(QPalette::ButtonText));
    painter->setFont(option.font);
    if (!(option.state & QStyle::State_Enabled))
        painter->setPen(option.palette.color(QPalette::Disabled, foregroundRole()));
    if (!row.shownShortcut.isEmpty())
        painter->drawText(row.shortcut, Qt::AlignLeft | Qt::AlignVCenter, row.shownShortcut);

    const QFontMetrics metrics(option.font);
    QString text = row.shownText;
    const bool elided = metrics.boundingRect(text).width() > row.text.width();
    d->elidedActions[action] = elided;
    if (elided) {
        takeTip(action, text);
        text = metrics.elidedText(text, Qt::ElideRight, qMax(0, row.text.width()),
                                  Qt::TextShowMnemonic);
    }
    int flags = Qt::AlignLeft | Qt::AlignVCenter | Qt::TextSingleLine | Qt::TextDontClip
        | Qt::TextShowMnemonic;
    if (!style()->styleHint(QStyle::SH_UnderlineShortcut, &option, this))
        flags |= Qt::TextHideMnemonic;
    painter->drawText(row.text, flags, text);
}

void CusMenu::takeTip(QAction *action, const QString &text)
{
    // The menu would measure all its rows again for each tip that a paint sets.
    const QScopedValueRollback<const QAction *> taking(d->takingTip, action);
    action->setToolTip(text);
}

bool CusMenu::showTipOf(const QAction *action)
{
    if (action->toolTip().isEmpty())
        return false;
    ToolTipLabel::showLabelText(QCursor::pos(), action->toolTip(), this);
    return true;
}

bool CusMenu::event(QEvent *event)
{
    switch (event->type()) {
    case QEvent::ActionChanged:
        // clazy:excludeall=wrong-qevent-cast (it doesn't know this type as a QActionEvent)
        if (d->takingTip == static_cast<QActionEvent *>(event)->action())
            return true;
        break;
    case QEvent::ActionRemoved:
        d->elidedActions.remove(static_cast<QActionEvent *>(event)->action());
        break;
    case QEvent::ToolTip: {
        QAction *action = actionAt(static_cast<QHelpEvent *>(event)->pos());
        const auto elided = d->elidedActions.constFind(action);
        if (!toolTipsVisible() || !action || elided == d->elidedActions.constEnd())
            break;
        // A text that fits shows no tip, not even one of the client's.
        if (*elided)
            showTipOf(action);
        return true;
    }
    default:
        break;
    }
    return QMenu::event(event);
}

void CusMenu::timerEvent(QTimerEvent *event)
{
    // A submenu that opens by the timer may lead the client to delete this menu.
    const QPointer<CusMenu> alive(this);
    QMenu::timerEvent(event);
    if (!alive || !isVisible() || !toolTipsVisible())
        return;
    // The submenu takes the events that would have asked for the tip.
    QAction *action = actionAt(mapFromGlobal(QCursor::pos()));
    if (action && action->menu() && d->elidedActions.value(action, false))
        showTipOf(action);
}
