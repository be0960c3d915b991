#include "edits/cuslineedit.h"

#include "buttons/cussvgpushbutton.h"
#include "common/restyle.h"
#include "labels/cusmenu.h"

#include <QAction>
#include <QChildEvent>
#include <QClipboard>
#include <QContextMenuEvent>
#include <QGuiApplication>
#include <QHash>
#include <QIcon>
#include <QKeyEvent>
#include <QMouseEvent>
#include <QPointer>
#include <QTimer>
#include <QWidgetAction>

namespace {

constexpr int kDefaultMaxLength = 64;
constexpr int kApplyDelay = 100;
constexpr QSize kButtonSize(20, 20);
constexpr int kUndoRedoEntries = 3; // and the separator below them

using ButtonFunction = std::function<void(bool)>;

/// One command of the context menu.
struct MenuEntry
{
    const char *text;
    QKeySequence::StandardKey shortcut;
    const char *icon;
    bool enabled;
};

QString withShortcut(const QString &text, QKeySequence::StandardKey key)
{
    const QString shortcut = key == QKeySequence::UnknownKey
        ? QString()
        : QKeySequence(key).toString(QKeySequence::NativeText);
    return shortcut.isEmpty() ? text : text + QLatin1Char('\t') + shortcut;
}

void rename(CusSvgPushButton *button, const QString &name)
{
    if (!button || name.isEmpty())
        return;
    button->setObjectName(name);
    // In an edit that is shown the button was polished without the name.
    vellum::restyle(button);
}

template <typename Slot>
void addEntry(CusMenu *menu, const MenuEntry &entry, QLineEdit *edit, Slot slot)
{
    QAction *action = menu->addAction(withShortcut(QLineEdit::tr(entry.text), entry.shortcut));
    action->setEnabled(entry.enabled);
    const QIcon icon = QIcon::fromTheme(QLatin1String(entry.icon));
    if (!icon.isNull())
        action->setIcon(icon);
    QObject::connect(action, &QAction::triggered, edit, slot);
}

} // namespace

struct CusLineEdit::Private
{
    bool eraseSpace = true;
    bool showingContextMenu = false;
    QRect lastMenuGlobalRect;
    int maxLength = kDefaultMaxLength;
    QTimer *applyTimer = nullptr;
    bool redoUndoMenuEnable = true;
    QList<Qt::Key> filterKeys;
    bool enableNoTextNotShowTrailBtn = false;
    QPointer<CusSvgPushButton> trailBtn;
    ButtonFunction trailFun;
    bool surpotTrailBtn = false;
    QPointer<QWidgetAction> trailAction;
    QPointer<CusSvgPushButton> leadBtn;
    ButtonFunction leadFun;
    bool surpotLeadBtn = false;
    /// What Qt's limit is while the text is longer than maxLength; else 0.
    int overlongLimit = 0;
    QHash<QObject *, QWidgetAction *> buttonActions;

    CusSvgPushButton *addButton(CusLineEdit *edit, QWidgetAction *action, ActionPosition position,
                                ButtonFunction Private::*function);
    void showTrailButton(bool visible);
    QString simple(const QString &text) const { return eraseSpace ? text.simplified() : text; }
};

CusSvgPushButton *CusLineEdit::Private::addButton(CusLineEdit *edit, QWidgetAction *action,
                                                  ActionPosition position,
                                                  ButtonFunction Private::*function)
{
    auto *button = new CusSvgPushButton(edit);
    button->setFixedSize(kButtonSize);
    // As Qt's own buttons in a line edit: a click leaves the focus where the text is.
    button->setFocusPolicy(Qt::NoFocus);
    button->setCursor(Qt::ArrowCursor);
    connect(button, &QAbstractButton::clicked, edit, [this, function](bool checked) {
        // A copy, since the function may delete the edit or register another.
        const ButtonFunction call = this->*function;
        if (call)
            call(checked);
    });
    action->setDefaultWidget(button);
    edit->QLineEdit::addAction(action, position);
    buttonActions.insert(button, action);
    return button;
}

void CusLineEdit::Private::showTrailButton(bool visible)
{
    // Hiding an action alone would leave its widget in the edit.
    trailAction->setVisible(visible);
    if (trailBtn)
        trailBtn->setVisible(visible);
}

CusLineEdit::CusLineEdit(QWidget *parent)
    : QLineEdit(parent)
    , d(std::make_unique<Private>())
{
    d->applyTimer = new QTimer(this);
    d->applyTimer->setSingleShot(true);
    d->applyTimer->setInterval(kApplyDelay);
    connect(d->applyTimer, &QTimer::timeout, this, &CusLineEdit::onApplyTimeout);
    d->applyTimer->start();
    connect(this, &QLineEdit::textChanged, this, &CusLineEdit::onTextChanged, Qt::UniqueConnection);
    connect(this, &QLineEdit::textEdited, this, &CusLineEdit::onTextEdit, Qt::UniqueConnection);
    // On purpose: most inputs of a client want no menu, and a right click goes to their parent.
    setContextMenuPolicy(Qt::NoContextMenu);
}

CusLineEdit::~CusLineEdit() = default;

QString CusLineEdit::text() const
{
    return d->simple(QLineEdit::text());
}

bool CusLineEdit::eraseSpace() const
{
    return d->eraseSpace;
}

void CusLineEdit::setEraseSapce(bool erase)
{
    d->eraseSpace = erase;
}

void CusLineEdit::setMaxLength(int length)
{
    d->maxLength = qMax(0, length);
    d->overlongLimit = 0;
    QLineEdit::setMaxLength(d->maxLength);
}

void CusLineEdit::setStopTimer()
{
    disconnect(d->applyTimer, &QTimer::timeout, this, &CusLineEdit::onApplyTimeout);
}

void CusLineEdit::setFilterKeys(const QList<Qt::Key> &keys)
{
    if (!d->filterKeys.isSharedWith(keys))
        d->filterKeys = keys;
}

void CusLineEdit::setRedoUndoMenuEnable(bool enable)
{
    d->redoUndoMenuEnable = enable;
}

void CusLineEdit::setPlaceHolderTextColor(const QColor &color)
{
    QPalette fresh;
    fresh.setColor(QPalette::PlaceholderText, color);
    setPalette(fresh);
}

void CusLineEdit::setSurpotTrailBtn(bool support)
{
    d->surpotTrailBtn = support;
    if (!support) {
        if (d->trailAction)
            d->trailAction->setVisible(false);
        return;
    }
    const bool replaces = d->trailAction;
    if (replaces) {
        // QWidgetAction deletes a default widget at once when it gets another. A sheet that sets
        // the property again does so while Qt goes over a list of all widgets, so the old pair
        // lives on, outside the edit, until that is done.
        removeAction(d->trailAction);
        d->trailAction->deleteLater();
    }
    d->trailAction = new QWidgetAction(this);
    d->trailBtn = d->addButton(this, d->trailAction, TrailingPosition, &Private::trailFun);
    // A sheet that is matched anew doesn't bring back what the empty text hides.
    if (replaces && d->enableNoTextNotShowTrailBtn)
        d->showTrailButton(!QLineEdit::text().isEmpty());
}

bool CusLineEdit::getSurpotTrailBtn() const
{
    return d->surpotTrailBtn;
}

void CusLineEdit::setTrailBtnObjName(const QString &name)
{
    rename(d->trailBtn, name);
}

QString CusLineEdit::getTrailBtnObjName() const
{
    return d->trailBtn ? d->trailBtn->objectName() : QString();
}

void CusLineEdit::setTrailBtnTips(const QString &tips)
{
    if (d->trailBtn && !tips.isEmpty())
        d->trailBtn->setToolTip(tips);
}

QString CusLineEdit::getTrailBtnTips() const
{
    return d->trailBtn ? d->trailBtn->toolTip() : QString();
}

void CusLineEdit::setSurpotLeadBtn(bool support)
{
    d->surpotLeadBtn = support;
    // Unlike at the trailing edge nothing is replaced or hidden: clients line up several buttons.
    if (support)
        d->leadBtn =
            d->addButton(this, new QWidgetAction(this), LeadingPosition, &Private::leadFun);
}

bool CusLineEdit::getSurpotLeadBtn() const
{
    return d->surpotLeadBtn;
}

void CusLineEdit::setLeadBtnObjName(const QString &name)
{
    rename(d->leadBtn, name);
}

QString CusLineEdit::getLeadBtnObjName() const
{
    return d->leadBtn ? d->leadBtn->objectName() : QString();
}

void CusLineEdit::setLeadBtnTips(const QString &tips)
{
    if (d->leadBtn && !tips.isEmpty())
        d->leadBtn->setToolTip(tips);
}

QString CusLineEdit::getLeadBtnTips() const
{
    return d->leadBtn ? d->leadBtn->toolTip() : QString();
}

void CusLineEdit::registerLeadFun(const std::function<void(bool)> &function)
{
    if (function)
        d->leadFun = function;
}

void CusLineEdit::registerTrailFun(const std::function<void(bool)> &function)
{
    if (function)
        d->trailFun = function;
}

void CusLineEdit::setEnableNoTextNotShowTrailBtn(bool enable)
{
    d->enableNoTextNotShowTrailBtn = enable;
    if (enable && d->surpotTrailBtn && d->trailAction)
        d->showTrailButton(!text().isEmpty());
}

bool CusLineEdit::getEnableNoTextNotShowTrailBnt() const
{
    return d->enableNoTextNotShowTrailBtn;
}

bool CusLineEdit::isShowingContextMenu() const
{
    return d->showingContextMenu;
}

const QRect &CusLineEdit::lastMenuGlobalRect() const
{
    return d->lastMenuGlobalRect;
}

QMenu *CusLineEdit::createStandardContextMenu()
{
    auto *menu = new CusMenu(this);
    menu->setObjectName(QStringLiteral("qt_edit_menu"));
    const bool normalSelection = hasSelectedText() && echoMode() == Normal;
    const bool writable = !isReadOnly();
    const QString whole = text();
    if (writable) {
        addEntry(menu, {"&Undo", QKeySequence::Undo, "edit-undo", isUndoAvailable()}, this,
                 &QLineEdit::undo);
        addEntry(menu, {"&Redo", QKeySequence::Redo, "edit-redo", isRedoAvailable()}, this,
                 &QLineEdit::redo);
        menu->addSeparator();
        addEntry(menu, {"Cu&t", QKeySequence::Cut, "edit-cut", normalSelection}, this,
                 &QLineEdit::cut);
    }
    addEntry(menu, {"&Copy", QKeySequence::Copy, "edit-copy", normalSelection}, this,
             &QLineEdit::copy);
    if (writable) {
        const bool pastable = !QGuiApplication::clipboard()->text().isEmpty();
        addEntry(menu, {"&Paste", QKeySequence::Paste, "edit-paste", pastable}, this,
                 &QLineEdit::paste);
        const bool deletable = !whole.isEmpty() && hasSelectedText();
        addEntry(menu, {"Delete", QKeySequence::UnknownKey, "edit-delete", deletable}, this,
                 [this] { deleteSelectedText(); });
    }
    menu->addSeparator();
    const bool selectable = !whole.isEmpty() && selectedText() != whole;
    addEntry(menu, {"Select All", QKeySequence::SelectAll, "edit-select-all", selectable}, this,
             &QLineEdit::selectAll);
    return menu;
}

void CusLineEdit::mousePressEvent(QMouseEvent *event)
{
    QLineEdit::mousePressEvent(event);
    Q_EMIT signalMousePressed();
}

void CusLineEdit::keyPressEvent(QKeyEvent *event)
{
    if (dealLeftRightKeyPress(event))
        return;
    if (d->filterKeys.contains(Qt::Key(event->key()))) {
        event->accept();
        return;
    }
    QLineEdit::keyPressEvent(event);
}

/// QLineEdit goes on with the bare pointer of a button that was deleted, be it by the function that
/// the button itself called.
void CusLineEdit::childEvent(QChildEvent *event)
{
    QLineEdit::childEvent(event);
    QWidgetAction *action = event->removed() ? d->buttonActions.take(event->child()) : nullptr;
    if (action && !action->defaultWidget())
        removeAction(action);
}

void CusLineEdit::contextMenuEvent(QContextMenuEvent *event)
{
    const QPointer<CusLineEdit> alive(this);
    const QPointer<QMenu> menu = createStandardContextMenu();
    if (!menu)
        return;
    if (!d->redoUndoMenuEnable) {
        // By index, so that the menu of a read-only edit is left empty: clients rely on it.
        const QList<QAction *> entries = menu->actions().mid(0, kUndoRedoEntries);
        for (QAction *entry : entries)
            menu->removeAction(entry);
    }
    menu->setObjectName(QStringLiteral("RightMenuPane"));
    d->showingContextMenu = true;
    menu->setAttribute(Qt::WA_DeleteOnClose);
    menu->popup(event->globalPos());
    // A client that hears of the menu may have closed it or deleted the edit.
    if (!alive)
        return;
    if (menu)
        d->lastMenuGlobalRect = QRect(menu->mapToGlobal(QPoint()), menu->size());
    d->showingContextMenu = false;
}

bool CusLineEdit::dealLeftRightKeyPress(QKeyEvent *event)
{
    if (!event || (event->key() != Qt::Key_Left && event->key() != Qt::Key_Right)
        || event->modifiers() == Qt::ShiftModifier || !hasSelectedText() || text().isEmpty())
        return false;
    setCursorPosition(event->key() == Qt::Key_Left ? selectionStart()
                                                   : selectionStart() + selectionLength());
    deselect();
    event->accept();
    return true;
}

void CusLineEdit::onTextChanged(const QString &text)
{
    // Unless the client has meanwhile put another limit in the place of ours.
    if (d->overlongLimit > 0 && d->overlongLimit == maxLength())
        onApplyTimeout();
    Q_EMIT textChangedSimpled(d->simple(text));
    if (d->enableNoTextNotShowTrailBtn && d->surpotTrailBtn && d->trailAction)
        d->showTrailButton(!text.isEmpty());
}

void CusLineEdit::onTextEdit(const QString &text)
{
    Q_EMIT textEditedSimpled(d->simple(text));
}

/// Qt cuts a text that is longer than its limit. This limit shall only stop the typing, so while
/// the text is longer, it follows the text's length down.
void CusLineEdit::onApplyTimeout()
{
    const int length = QLineEdit::text().size();
    const int limit = qMax(length, d->maxLength);
    d->overlongLimit = length > d->maxLength ? limit : 0;
    // With a mask Qt takes no limit but the mask's.
    if (limit == maxLength() || !inputMask().isEmpty())
        return;
    // Qt sets the text anew with a limit, and so loses what the user did until now.
    const int cursor = cursorPosition();
    const int start = selectionStart();
    const int selected = cursor == start ? -selectionLength() : selectionLength();
    const bool modified = isModified();
    QLineEdit::setMaxLength(limit);
    setModified(modified);
    setCursorPosition(cursor);
    if (start >= 0)
        setSelection(cursor - selected, selected);
}

/// Looks for the selected content from the cursor on, not at the selected range, in the text as
/// text() gives it: clients rely on it.
void CusLineEdit::deleteSelectedText()
{
    QString rest = text();
    const QString selected = selectedText();
    if (rest == selected) {
        setText(QString());
        return;
    }
    int cursor = cursorPosition();
    int index = rest.indexOf(selected, cursor);
    if (index < 0) {
        cursor = qMax(0, cursor - selected.size());
        index = rest.indexOf(selected, cursor);
    }
    if (index < 0)
        return;
    rest.remove(index, selected.size());
    setText(rest);
    setCursorPosition(cursor);
}
