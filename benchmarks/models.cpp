#include "benchmarks.h"

#include <Vellum/BasicTreeModel>
#include <Vellum/CusNavigateData>
#include <Vellum/SelectItemListModel>

#include <QImage>
#include <QStandardItemModel>
#include <QTreeView>

#include <algorithm>
#include <memory>
#include <random>
#include <vector>

namespace {

constexpr int kCamerasOfASite = 100;
constexpr int kNodes = 20000;
constexpr int kRestoredNodes = 100000;

QString nameOf(int number)
{
    return QStringLiteral("Camera %1").arg(number, 6, 10, QLatin1Char('0'));
}

CusNavigateData record(int number)
{
    CusNavigateData data;
    data.naviId = nameOf(number);
    data.naviText = data.naviId;
    return data;
}

/// Sites of 100 cameras each.
class CameraTree : public BasicTreeModel<CusNavigateData>
{
public:
    explicit CameraTree(int nodes, int camerasOfASite = kCamerasOfASite)
    {
        rootNode = createTreeNode({}, nullptr);
        NodePtr site;
        for (int i = 0; i < nodes; ++i) {
            if (i % (camerasOfASite + 1) == 0)
                site = createTreeNode(record(i), rootNode);
            else
                createTreeNode(record(i), site);
        }
        setAllNodeExpandState(true);
    }

    QString nodeIndexToText(const QModelIndex &index) const override
    {
        const NodePtr node = nodeFromIndex(index);
        return node ? node->nodeId.naviText : QString();
    }
};

/// The same shape over raw pointers, without any look-up.
class BareTree : public QAbstractItemModel
{
public:
    struct Node
    {
        QString text;
        Node *parent = nullptr;
        int row = 0;
        std::vector<std::unique_ptr<Node>> children;
    };

    explicit BareTree(int nodes)
    {
        Node *site = nullptr;
        for (int i = 0; i < nodes; ++i) {
            Node *const node = add(i % (kCamerasOfASite + 1) == 0 ? &m_root : site, nameOf(i));
            if (node->parent == &m_root)
                site = node;
        }
    }

    QModelIndex index(int row, int column, const QModelIndex &parent) const override
    {
        const Node *const node = nodeOf(parent);
        return row < 0 || row >= int(node->children.size())
            ? QModelIndex()
            : createIndex(row, column, node->children[size_t(row)].get());
    }
    QModelIndex parent(const QModelIndex &child) const override
    {
        Node *const node = nodeOf(child)->parent;
        return !node || node == &m_root ? QModelIndex() : createIndex(node->row, 0, node);
    }
    int rowCount(const QModelIndex &parent) const override
    {
        return int(nodeOf(parent)->children.size());
    }
    int columnCount(const QModelIndex &) const override { return 1; }
    QVariant data(const QModelIndex &index, int role) const override
    {
        return role == Qt::DisplayRole ? QVariant(nodeOf(index)->text) : QVariant();
    }

private:
    static Node *add(Node *parent, const QString &text)
    {
        auto node = std::make_unique<Node>();
        node->text = text;
        node->parent = parent;
        node->row = int(parent->children.size());
        parent->children.push_back(std::move(node));
        return parent->children.back().get();
    }
    const Node *nodeOf(const QModelIndex &index) const
    {
        return index.isValid() ? static_cast<const Node *>(index.internalPointer()) : &m_root;
    }

    Node m_root;
};

template <typename Model>
void expandAll(benchmark::State &state, int nodes)
{
    Model model(nodes);
    QTreeView view;
    view.setModel(&model);
    for (auto _ : state) {
        view.collapseAll();
        view.expandAll();
        benchmark::DoNotOptimize(view.visualRect(model.index(0, 0, QModelIndex())));
    }
}

template <typename Model>
void paintEnd(benchmark::State &state)
{
    Model model(kNodes);
    QTreeView view;
    view.setModel(&model);
    view.expandAll();
    view.resize(400, 50 * view.sizeHintForRow(0));
    view.show();
    view.scrollToBottom();
    QImage image(view.size(), QImage::Format_ARGB32_Premultiplied);
    for (auto _ : state)
        view.viewport()->render(&image);
}

void parentOfLeaves(benchmark::State &state)
{
    const CameraTree model(int(state.range(0)), 9);
    std::vector<QModelIndex> leaves;
    for (int i = 0; i < model.rowCount(); ++i) {
        const QModelIndex site = model.index(i, 0);
        for (int row = 0; row < model.rowCount(site); ++row)
            leaves.push_back(model.index(row, 0, site));
    }
    for (auto _ : state) {
        for (const QModelIndex &leaf : leaves)
            benchmark::DoNotOptimize(model.parent(leaf));
    }
}

void expandIndexes(benchmark::State &state)
{
    const CameraTree model(int(state.range(0)), 9);
    QList<QModelIndex> indexes;
    for (auto _ : state)
        model.getExpandIndex(indexes);
}

void resetAndRestore(benchmark::State &state)
{
    CameraTree model(kRestoredNodes);
    QTreeView view;
    view.setModel(&model);
    QList<QModelIndex> indexes;
    for (auto _ : state) {
        model.resetModelData();
        model.getExpandIndex(indexes);
        for (const QModelIndex &index : qAsConst(indexes))
            view.setExpanded(index, true);
        benchmark::DoNotOptimize(view.visualRect(model.getFirstIndex()));
    }
}

void layOutStandardItems(benchmark::State &state)
{
    QStandardItemModel model;
    QStandardItem *site = nullptr;
    for (int i = 0; i < kRestoredNodes; ++i) {
        auto *item = new QStandardItem(nameOf(i));
        if (i % (kCamerasOfASite + 1) == 0) {
            site = item;
            model.appendRow(item);
        } else {
            site->appendRow(item);
        }
    }
    QTreeView view;
    view.setModel(&model);
    view.expandAll();
    for (auto _ : state)
        view.doItemsLayout();
}

QList<SelectItemBaseInfo> shuffledRows(int count)
{
    QList<SelectItemBaseInfo> rows;
    rows.reserve(count);
    for (int i = 0; i < count; ++i)
        rows.append({nameOf(i), QStringLiteral("North gate"), 0, {}});
    std::shuffle(rows.begin(), rows.end(), std::mt19937(1));
    return rows;
}

void addUnique(benchmark::State &state)
{
    const QList<SelectItemBaseInfo> rows = shuffledRows(int(state.range(0)));
    SelectItemListModel model;
    for (auto _ : state) {
        model.clearListModelData(false);
        model.addListModelData(rows, true);
    }
}

bool precedes(const SelectItemBaseInfo &left, const SelectItemBaseInfo &right)
{
    return left.itemId < right.itemId;
}

constexpr int kSortedRows = 1000000;

void sortRows(benchmark::State &state)
{
    const QList<SelectItemBaseInfo> rows = shuffledRows(kSortedRows);
    SelectItemListModel model;
    model.setSortCallback(precedes);
    for (auto _ : state)
        model.setShowModelData(rows);
}

void sortStably(benchmark::State &state)
{
    const QList<SelectItemBaseInfo> rows = shuffledRows(kSortedRows);
    const std::function<bool(const SelectItemBaseInfo &, const SelectItemBaseInfo &)> order =
        precedes;
    for (auto _ : state) {
        QList<SelectItemBaseInfo> sorted = rows;
        std::stable_sort(sorted.begin(), sorted.end(), order);
        benchmark::DoNotOptimize(sorted);
    }
}

const BenchmarkPair expansion{"tree of 20,000 nodes expanded and laid out", 1.6,
                              [](benchmark::State &state) { expandAll<CameraTree>(state, kNodes); },
                              [](benchmark::State &state) { expandAll<BareTree>(state, kNodes); }};
const BenchmarkGrowth expansionGrowth{
    "tree expanded and laid out", 1.2, {5000, 20000, 100000}, [](benchmark::State &state) {
        expandAll<CameraTree>(state, int(state.range(0)));
    }};
const BenchmarkPair painting{"50 rows at the end of a tree painted", 1.4, paintEnd<CameraTree>,
                             paintEnd<BareTree>};
const BenchmarkGrowth parents{
    "parent() of the leaves of a wide tree", 1.2, {2000, 6000, 20000}, parentOfLeaves};
const BenchmarkGrowth expanded{"getExpandIndex()", 1.5, {2000, 20000, 100000}, expandIndexes};
const BenchmarkPair restoring{"100,000 nodes reset, expanded, laid out", 1.3, resetAndRestore,
                              layOutStandardItems};
const BenchmarkGrowth unique{"unique add", 1.4, {4000, 16000, 64000}, addUnique};
const BenchmarkPair sorting{"1,000,000 rows sorted by a callback", 1.2, sortRows, sortStably};

} // namespace
