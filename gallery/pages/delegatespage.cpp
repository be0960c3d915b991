#include "gallerypage.h"
#include "pagekit.h"
#include "pages/recorddelegate.h"

#include <Vellum/BasicTreeModel>
#include <Vellum/CheckAndExpandDelegate>
#include <Vellum/CusItemDataRole>
#include <Vellum/LongTextTipDelegate>
#include <Vellum/MulListNode>
#include <Vellum/RichString>
#include <Vellum/SelectItemListModel>
#include <Vellum/ToolTipLabel>

#include <QHBoxLayout>
#include <QHeaderView>
#include <QLabel>
#include <QListView>
#include <QMouseEvent>
#include <QPainter>
#include <QPushButton>
#include <QStandardItemModel>
#include <QTableView>
#include <QTreeView>

#include <functional>

namespace {

constexpr int kRow = 30;
constexpr QLatin1String kSeparator("; ", 2);

/// What the models and delegates of the page reported.
struct Counters
{
    int resets = 0;
    int checks = 0;
    int folds = 0;
    int records = 0;
};

/// Sites, buildings and cameras. A check spreads to all below, and what stands above is checked,
/// partly checked or unchecked as its parts are.
class DeviceTreeModel : public BasicTreeModel<MulListNode>
{
public:
    DeviceTreeModel()
    {
        rootNode = createTreeNode(MulListNode(), nullptr);
        const NodePtr north = add("North site", rootNode);
        add("Gate", north);
        add("Car park, upper deck, row 14 next to the charging stations", north);
        const NodePtr hall = add("Hall", north);
        for (const char *name : {"Entrance", "Escalator", "Cash desks"})
            add(name, hall);
        const NodePtr south = add("South site", rootNode);
        for (const char *name : {"Loading bay", "Server room", "Fence"})
            add(name, south);
        for (const NodePtr &node : {north, hall})
            node->expanded = true;
        spread(*hall->children.at(1), Qt::Checked);
        spread(*south, Qt::Checked);
    }

    QVariant data(const QModelIndex &index, int role) const override
    {
        const NodePtr node = role == Qt::CheckStateRole ? nodeFromIndex(index) : nullptr;
        return node ? QVariant(node->checkState) : BasicTreeModel::data(index, role);
    }
    bool setData(const QModelIndex &index, const QVariant &value, int role) override
    {
        const NodePtr node = role == Qt::CheckStateRole ? nodeFromIndex(index) : nullptr;
        if (!node)
            return BasicTreeModel::setData(index, value, role);
        spread(*node, value.toInt());
        return setCheckedData(index, Qt::CheckState(value.toInt()));
    }

protected:
    QString nodeIndexToText(const QModelIndex &index) const override
    {
        const NodePtr node = nodeFromIndex(index);
        return node ? node->nodeId.text : QString();
    }

private:
    NodePtr add(const char *name, const NodePtr &parent)
    {
        return createTreeNode(MulListNode(++m_lastId, QString::fromLatin1(name), false), parent);
    }
    void spread(Node &node, int state)
    {
        node.checkState = state;
        for (const NodePtr &child : qAsConst(node.children))
            spreadDown(*child, state);
        for (NodePtr above = node.parentNode.lock(); above && above != rootNode;
             above = above->parentNode.lock()) {
            const auto &parts = above->children;
            const bool same = std::all_of(parts.cbegin(), parts.cend(), [&](const NodePtr &part) {
                return part->checkState == parts.first()->checkState;
            });
            above->checkState = same ? parts.first()->checkState : Qt::PartiallyChecked;
        }
    }
    static void spreadDown(Node &node, int state)
    {
        node.checkState = state;
        for (const NodePtr &child : qAsConst(node.children))
            spreadDown(*child, state);
    }

    int m_lastId = 0;
};

/// A cell with a rounded ground in the colours that the item data roles give.
class SeverityDelegate : public TipStyleDelegate
{
public:
    explicit SeverityDelegate(QObject *parent)
        : TipStyleDelegate(parent)
    {
        setEnableColorfulText(true);
    }

    void paint(QPainter *painter, const QStyleOptionViewItem &option,
               const QModelIndex &index) const override
    {
        TipStyleDelegate::paint(painter, option, index);
        QStyleOptionViewItem cell = option;
        initStyleOption(&cell, index);
        const bool active = cell.state & (QStyle::State_Selected | QStyle::State_MouseOver);
        cell.rect.adjust(8, 5, -8, -5);
        cell.displayAlignment = Qt::AlignCenter;
        painter->save();
        painter->setRenderHint(QPainter::Antialiasing);
        painter->setPen(Qt::NoPen);
        painter->setBrush(cell.palette.brush(active ? QPalette::Highlight : QPalette::Base));
        painter->drawRoundedRect(cell.rect, 4, 4);
        painter->restore();
        paintItemText(painter, cell, index);
    }
};

/// A cell of pieces of text, each in its own colour.
class PiecesDelegate : public TipStyleDelegate
{
public:
    using TipStyleDelegate::TipStyleDelegate;

    void paint(QPainter *painter, const QStyleOptionViewItem &option,
               const QModelIndex &index) const override
    {
        TipStyleDelegate::paint(painter, option, index);
        QStyleOptionViewItem cell = option;
        cell.rect.adjust(8, 0, -8, 0);
        paintItemMulText(painter, cell, index);
    }
};

/// A table whose delegates hover the whole row under the cursor.
class HoverTable : public QTableView
{
public:
    HoverTable()
    {
        setMouseTracking(true);
        setShowGrid(false);
        verticalHeader()->hide();
        verticalHeader()->setDefaultSectionSize(kRow);
        horizontalHeader()->setStretchLastSection(true);
        horizontalHeader()->setDefaultAlignment(Qt::AlignLeft | Qt::AlignVCenter);
        setHorizontalScrollBarPolicy(Qt::ScrollBarAlwaysOff);
        setSelectionBehavior(SelectRows);
        connect(this, &QAbstractItemView::entered, this,
                [this](const QModelIndex &index) { hoverRow(index.row()); });
    }

    void hoverRow(int row)
    {
        for (int column = 0; column < model()->columnCount(); ++column) {
            if (auto *delegate = qobject_cast<TipStyleDelegate *>(itemDelegateForColumn(column)))
                delegate->setCurRowHover(row);
        }
        viewport()->update();
    }

protected:
    void mouseMoveEvent(QMouseEvent *event) override
    {
        QTableView::mouseMoveEvent(event);
        update(indexAt(event->pos())); // the record button has a hover look of its own
    }
    void leaveEvent(QEvent *event) override
    {
        QTableView::leaveEvent(event);
        hoverRow(-1);
    }
};

void setColors(QStandardItem *item, const char *text, const char *active, const char *ground,
               const char *selected, const char *hover)
{
    using namespace CusItemDataRole;
    item->setData(QColor(QLatin1String(text)), RoleTextColor);
    item->setData(QColor(QLatin1String(active)), RoleTextColorActive);
    item->setData(QColor(QLatin1String(ground)), RoleBgColor);
    item->setData(QColor(QLatin1String(selected)), RoleBgColorSelected);
    item->setData(QColor(QLatin1String(hover)), RoleBgColorHover);
}

QStandardItem *severity(int level)
{
    static const char *const names[] = {"Alarm", "Warning", "Normal"};
    auto *item = new QStandardItem(QString::fromLatin1(names[level]));
    if (level == 0)
        setColors(item, "#FFFFFF", "#FFFFFF", "#A03232", "#C83F3F", "#CF4747");
    else if (level == 1)
        setColors(item, "#FFAF14", "#0F121A", "#4A3A14", "#FFAF14", "#E8A013");
    else
        setColors(item, "#7FD6AB", "#FFFFFF", "#173D31", "#109E5C", "#0E8A50");
    return item;
}

QStandardItem *pieces(const QString &time, const QString &text, const QString &plate)
{
    auto *item = new QStandardItem;
    const QList<RichString> list = {RichString(QColor(QStringLiteral("#C3CAD6")), time),
                                    RichString(text),
                                    RichString(QColor(QStringLiteral("#A9D1F9")), plate)};
    item->setData(QVariant::fromValue(list), Qt::DisplayRole);
    return item;
}

class DelegatesPage : public QWidget
{
public:
    DelegatesPage()
    {
        auto *column = PageKit::pageLayout(
            this, QStringLiteral("Models and delegates"),
            QStringLiteral(
                "Cells that delegates draw from hidden buttons and item data roles, over "
                "models that tell changes by a reset."));
        auto *first = new QHBoxLayout;
        first->setSpacing(16);
        first->addWidget(PageKit::card(QStringLiteral("SelectItemListModel"), cameraList()));
        first->addWidget(PageKit::card(
            QStringLiteral("CheckAndExpandDelegate over a BasicTreeModel"), deviceTree()));
        m_line = PageKit::signalLine();
        auto *live = new QVBoxLayout;
        live->setSpacing(8);
        live->addWidget(buttons());
        live->addWidget(m_line);
        live->addWidget(PageKit::caption(QStringLiteral(
            "A press on the arrow folds the row (ExpandStyleDelegate), one anywhere else toggles "
            "it. A name that doesn't fit has a tip, and so has the arrow.")));
        live->addStretch(1);
        first->addWidget(PageKit::card(QStringLiteral("What they reported"), live), 1);
        column->addLayout(first);
        column->addWidget(PageKit::card(
            QStringLiteral("Subclasses of TipStyleDelegate: colours by role, a record button, a "
                           "LongTextTipDelegate, pieces of text; BasicDelegateEditor edits"),
            eventTable()));
        count();
    }

private:
    void count(int Counters::*counter = nullptr)
    {
        if (counter)
            ++(m_counters.*counter);
        m_line->setText(QStringLiteral("Model resets: %1\nCheck callbacks: %2\nRows folded: %3\n"
                                       "Record buttons: %4")
                            .arg(m_counters.resets)
                            .arg(m_counters.checks)
                            .arg(m_counters.folds)
                            .arg(m_counters.records));
    }

    QWidget *cameraList()
    {
        m_cameras = new SelectItemListModel(this);
        QList<SelectItemBaseInfo> rows;
        for (const char *name : {"North gate", "Car park, upper deck, row 14", "Loading bay",
                                 "Server room", "Lobby"}) {
            SelectItemBaseInfo row;
            row.itemId = QString::number(rows.size());
            row.showText = QString::fromLatin1(name);
            row.checkState = 2 - rows.size() % 3;
            rows.append(row);
        }
        m_cameras->setListModelData(rows);
        auto *view = new QListView;
        auto *delegate = new CheckAndExpandDelegate(view);
        delegate->setEnableMultiDelegate(true);
        view->setItemDelegate(delegate);
        view->setModel(m_cameras);
        view->setEditTriggers(QAbstractItemView::NoEditTriggers);
        view->setFixedSize(240, 8 * kRow + 2);
        m_cameras->registerDealWithCheckCb([this] { count(&Counters::checks); });
        connect(delegate, &CheckAndExpandDelegate::signalDelegateChekcChanged, view->viewport(),
                QOverload<>::of(&QWidget::update));
        connect(m_cameras, &QAbstractItemModel::modelReset, this,
                [this] { count(&Counters::resets); });
        return view;
    }

    QWidget *deviceTree()
    {
        auto *model = new DeviceTreeModel;
        model->setParent(this);
        auto *view = new QTreeView;
        auto *delegate = new CheckAndExpandDelegate(view);
        delegate->setEnableMultiDelegate(true);
        view->setItemDelegate(delegate);
        view->setModel(model);
        view->setObjectName(QStringLiteral("gallery_deviceTree"));
        view->setHeaderHidden(true);
        view->setRootIsDecorated(false);
        view->setItemsExpandable(false);
        view->setUniformRowHeights(true);
        view->setFixedSize(360, 8 * kRow + 2);
        QList<QModelIndex> expanded;
        model->getExpandIndex(expanded);
        for (const QModelIndex &index : qAsConst(expanded))
            view->expand(index);
        model->regCheckCountChangeCb(
            [this](const QMap<MulListNode, Qt::CheckState> &) { count(&Counters::checks); });
        connect(delegate, &CheckAndExpandDelegate::signalDelegateChekcChanged, view->viewport(),
                QOverload<>::of(&QWidget::update));
        connect(delegate, &ExpandStyleDelegate::signalCusIndexExpandState, view,
                [this, model, view](const QModelIndex &index, bool expand) {
                    model->setData(index, expand, CusItemDataRole::RoleExpanded);
                    view->setExpanded(index, expand);
                    count(&Counters::folds);
                });
        return view;
    }

    QWidget *buttons()
    {
        auto *add = new QPushButton(QStringLiteral("Add a camera"));
        connect(add, &QPushButton::clicked, this, [this] {
            SelectItemBaseInfo row;
            row.itemId = QString::number(m_cameras->getShowModelDataCount());
            row.showText = QStringLiteral("Camera %1").arg(row.itemId);
            m_cameras->addListModelData(row, true);
        });
        auto *all = new QPushButton(QStringLiteral("Only the lobby"));
        connect(all, &QPushButton::clicked, this,
                [this] { m_cameras->setSelectIndexs({QStringLiteral("4")}, Qt::Checked); });
        return PageKit::row({add, all}, 8);
    }

    QWidget *eventTable()
    {
        auto *model = new QStandardItemModel(this);
        model->setHorizontalHeaderLabels({QStringLiteral("Severity"), QStringLiteral("Camera"),
                                          QStringLiteral("Recorded on"), QStringLiteral("Event")});
        model->horizontalHeaderItem(2)->setTextAlignment(Qt::AlignCenter);
        const QStringList cameras = {
            QStringLiteral("North gate"),  QStringLiteral("Car park, upper deck, row 14"),
            QStringLiteral("Loading bay"), QStringLiteral("Server room, rear aisle, rack 12"),
            QStringLiteral("Lobby"),       QStringLiteral("Fence, west")};
        QStringList recorders;
        for (int number = 1; number <= 12; ++number)
            recorders.append(QStringLiteral("Recorder %1").arg(number));
        for (int row = 0; row < cameras.size(); ++row) {
            auto *camera = new QStandardItem(cameras.at(row));
            camera->setData(row == 1, CusItemDataRole::RolePlaying);
            auto *recorded =
                new QStandardItem(recorders.mid(0, 12 - 5 * (row % 3)).join(kSeparator));
            recorded->setTextAlignment(Qt::AlignCenter);
            model->appendRow(
                {severity(row % 3), camera, recorded,
                 pieces(QStringLiteral("07:%1").arg(14 + 9 * row),
                        QStringLiteral("passed the line"), QStringLiteral("VL 12%1").arg(row))});
        }
        auto *view = new HoverTable;
        view->setModel(model);
        view->setItemDelegateForColumn(0, new SeverityDelegate(view));
        auto *record = new RecordDelegate(view);
        view->setItemDelegateForColumn(1, record);
        auto *lines = new LongTextTipDelegate(view);
        lines->setLineBreakDisplay({2}, kSeparator, true);
        view->setItemDelegateForColumn(2, lines);
        view->setItemDelegateForColumn(3, new PiecesDelegate(view));
        view->setColumnWidth(0, 110);
        view->setColumnWidth(1, 220);
        view->setColumnWidth(2, 220);
        view->setFixedHeight(32 + 6 * kRow);
        view->selectRow(0);
        view->hoverRow(1);
        connect(record, &RecordDelegate::recordClicked, this,
                [this, model](const QModelIndex &index) {
                    const int role = CusItemDataRole::RolePlaying;
                    model->setData(index, !index.data(role).toBool(), role);
                    count(&Counters::records);
                });

        ToolTipLabel tip;
        tip.updateSize(recorders.mid(0, 10).join(QLatin1Char('\n'))
                       + QStringLiteral("\nTotal(12)"));
        auto *picture = new QLabel;
        tip.grab();
        picture->setPixmap(tip.grab());
        auto *box = new QWidget;
        auto *line = new QHBoxLayout(box);
        line->setContentsMargins(0, 0, 0, 0);
        line->setSpacing(16);
        line->addWidget(view, 1, Qt::AlignTop);
        line->addWidget(PageKit::captioned(picture, QStringLiteral("Tip of a long cell")), 0,
                        Qt::AlignTop);
        return box;
    }

    Counters m_counters;
    SelectItemListModel *m_cameras = nullptr;
    QLabel *m_line = nullptr;
};

const GalleryPage page{70, QStringLiteral("Models and delegates"),
                       [] { return new DelegatesPage; }};

} // namespace
