#include "support/guardedtest.h"

#include <Vellum/BasicTreeModel>
#include <Vellum/CusItemDataRole>
#include <Vellum/CusMulSelectedComboboxModel>
#include <Vellum/TreeNode>

#include <QAbstractItemModelTester>
#include <QtTest>

#include <random>

namespace {

/// Keyed by the first field, equal by both.
struct Id
{
    int key = -1;
    int tail = 0;
    friend bool operator<(const Id &a, const Id &b) { return a.key < b.key; }
    friend bool operator==(const Id &a, const Id &b) { return a.key == b.key && a.tail == b.tail; }
};

using Node = TreeNode<Id>;
using NodePtr = std::shared_ptr<Node>;

QString textOf(const Node *node)
{
    return node ? QStringLiteral("%1.%2").arg(node->nodeId.key).arg(node->nodeId.tail)
                : QStringLiteral("-");
}

class Tree : public BasicTreeModel<Id>
{
public:
    Tree() { rootNode = createTreeNode({}, nullptr); }

    NodePtr root() const { return rootNode; }
    void setFast(bool fast) { fastFindByPtr = fast; }
    QString nodeIndexToText(const QModelIndex &index) const override
    {
        return textOf(nodeFromIndex(index).get());
    }
    /// Row and identity of each expanded index.
    QString expandRows() const
    {
        QList<QModelIndex> indexes;
        getExpandIndex(indexes);
        QString text;
        for (const QModelIndex &index : qAsConst(indexes))
            text += QStringLiteral("%1:%2 ").arg(index.row()).arg(index.data().toString());
        return text;
    }
    /// Every row that a view comes by.
    QString rows(const QModelIndex &parent = {}) const
    {
        QString text;
        for (int i = 0; i < rowCount(parent); ++i)
            text += data(index(i, 0, parent)).toString() + QLatin1Char('(')
                + rows(index(i, 0, parent)) + QLatin1Char(')');
        return text;
    }
};

/// The walks over map and tree as they are defined, without any shortcut.
struct Oracle
{
    NodePtr root = std::make_shared<Node>(Id());
    QMap<Id, std::weak_ptr<Node>> map;
    bool fast = false;

    NodePtr find(const Id &id) const { return map.value(id).lock(); }
    NodePtr byAddress(const Node *address) const
    {
        if (fast)
            return find(address->nodeId);
        for (const auto &entry : map) {
            if (entry.lock().get() == address)
                return entry.lock();
        }
        return {};
    }
    void create(const Id &id, const NodePtr &parent)
    {
        const auto node = std::make_shared<Node>(id);
        node->parentNode = parent;
        parent->children += node;
        map[id] = node;
    }
    void remove(const Id &id)
    {
        const NodePtr node = find(id);
        if (!node)
            return;
        if (const NodePtr parent = node->parentNode.lock())
            parent->children.removeOne(node);
        node->parentNode.reset();
        map.remove(id);
        const QList<NodePtr> children = node->children;
        for (const NodePtr &child : children)
            remove(child->nodeId);
    }
    void clear(const NodePtr &node)
    {
        const QList<NodePtr> children = node ? node->children : QList<NodePtr>();
        for (const NodePtr &child : children) {
            child->parentNode.reset();
            clear(child);
            node->children.removeOne(child);
            map.remove(child->nodeId);
        }
    }
    void filter(int rejected)
    {
        const auto before = map;
        for (const auto &entry : before) {
            const NodePtr node = entry.lock();
            if (!node || node->nodeId.key != rejected)
                continue;
            map.remove(node->nodeId);
            if (const NodePtr parent = node->parentNode.lock())
                parent->children.removeOne(node);
            node->parentNode.reset();
        }
    }
    QString rows(const Node *node) const
    {
        QString text;
        for (const NodePtr &child : node->children) {
            const NodePtr found = byAddress(child.get());
            text += textOf(found.get()) + QLatin1Char('(') + (found ? rows(found.get()) : QString())
                + QLatin1Char(')');
        }
        return text;
    }
    /// The row of the first node with this identity, -1 without one.
    int search(const Node *node, const Id &id) const
    {
        int row = -1;
        for (int i = 0; row < 0 && i < node->children.size(); ++i) {
            const NodePtr found = byAddress(node->children.at(i).get());
            if (found)
                row = found->nodeId == id ? i : search(found.get(), id);
        }
        return row;
    }
    QString expandRows() const
    {
        QString text;
        for (const auto &entry : map) {
            const NodePtr node = entry.lock();
            if (!node || !node->expanded)
                continue;
            node->expanded = !node->children.isEmpty();
            const int row = node->expanded ? search(root.get(), node->nodeId) : -1;
            if (row >= 0)
                text += QStringLiteral("%1:%2 ").arg(row).arg(textOf(node.get()));
        }
        return text;
    }
};

void oneStep(std::mt19937 &random, Tree &tree, Oracle &oracle, QList<NodePtr> &kept)
{
    const auto upTo = [&random](int end) { return int(random() % unsigned(end)); };
    const Id id{upTo(14), upTo(2)};
    const Id parentId{upTo(14), 0};
    switch (upTo(9)) {
    case 0:
        tree.deleteTreeNodeByNodeId(id);
        return oracle.remove(id);
    case 1:
        tree.clearChildNode(tree.findNodeByNodeId(id));
        return oracle.clear(oracle.find(id));
    case 2: // what a client keeps leaves the tree with the nodes below it
        kept = {tree.findNodeByNodeId(id), oracle.find(id)};
        tree.registerFilterNodeId([&id](const Id &any) { return any.key != id.key; });
        tree.registerFilterNodeId({});
        return oracle.filter(id.key);
    case 3:
        tree.updateNodeId(id);
        if (const NodePtr node = oracle.find(id))
            node->nodeId = id;
        return;
    case 4:
        for (const NodePtr &node : {tree.findNodeByNodeId(id), oracle.find(id)}) {
            if (node)
                node->expanded = !node->expanded;
        }
        return;
    default: {
        const NodePtr parent = tree.findNodeByNodeId(parentId);
        const NodePtr same = oracle.find(parentId);
        tree.createTreeNode(id, parent ? parent : tree.root());
        oracle.create(id, same ? same : oracle.root);
    }
    }
}

} // namespace

class TestBasicTreeModel : public GuardedTest
{
    Q_OBJECT

private Q_SLOTS:
    /// With doubled identities, kept orphans, and branches that were deleted by half.
    void shortcutsAgreeWithTheWalks()
    {
        std::mt19937 random(5);
        for (int round = 0; round < 80; ++round) {
            Tree tree;
            Oracle oracle;
            QList<NodePtr> kept;
            oracle.fast = round % 2;
            tree.setFast(oracle.fast);
            for (int step = 0; step < 60; ++step) {
                oneStep(random, tree, oracle, kept);
                QCOMPARE(tree.rows(), oracle.rows(oracle.root.get()));
                QCOMPARE(tree.expandRows(), oracle.expandRows());
                const Id id{step % 14, step % 2};
                QCOMPARE(textOf(tree.findNodeByNodeId(id).get()), textOf(oracle.find(id).get()));
                QCOMPARE(tree.indexFromNodeId(id).row(), oracle.search(oracle.root.get(), id));
            }
        }
    }

    void survivesAnyDepth()
    {
        constexpr int depth = 100000;
        std::weak_ptr<Node> last;
        {
            Tree tree;
            NodePtr node = tree.root();
            for (int i = 0; i < depth; ++i)
                node = tree.createTreeNode({i, 0}, node);
            last = node;
            node.reset();
            tree.setAllNodeExpandState(true);
            tree.root()->sortChild({});
            int states = 0;
            tree.regCheckCountChangeCb(
                [&states](const QMap<Id, Qt::CheckState> &map) { states = map.size(); });
            tree.setAllCheckState(Qt::Checked);
            QCOMPARE(states, depth + 1);
            QCOMPARE(tree.getNeedShowNodeCount(), depth);
            QList<QModelIndex> indexes;
            tree.getExpandIndex(indexes);
            QCOMPARE(indexes.size(), depth - 1);
            QVERIFY(!tree.indexFromNodeId({depth, 0}).isValid());
            tree.clearChildNode(tree.findNodeByNodeId({depth - 10, 0}));
            QVERIFY(last.expired());
            tree.deleteTreeNodeByNodeId({depth / 2, 0});
            QVERIFY(!tree.findNodeByNodeId({depth / 2 + 1, 0}));
            last = tree.findNodeByNodeId({depth / 2 - 1, 0});
            QVERIFY(!last.expired());
        }
        QVERIFY(last.expired());
    }

    void answersAndStoresItsRoles()
    {
        Tree tree;
        const NodePtr site = tree.createTreeNode({1, 0}, tree.root());
        tree.createTreeNode({2, 0}, site);
        const QAbstractItemModelTester tester(
            &tree, QAbstractItemModelTester::FailureReportingMode::QtTest);
        const QSignalSpy changes(&tree, &QAbstractItemModel::dataChanged);
        const QModelIndex index = tree.getFirstIndex();
        using namespace CusItemDataRole;
        for (const int role : {RoleRowHidden, RoleExpanded, RolePlaying, RoleEditState}) {
            QVERIFY(!tree.data(index, role).toBool());
            QVERIFY(tree.setData(index, 1, role));
            QVERIFY(tree.data(index, role).toBool());
        }
        QVERIFY(site->rowHidden && site->expanded && site->playing && tree.havePlayingNode());
        QVERIFY(tree.setData(index, 1, RoleMulState) && !tree.data(index, RoleMulState).isValid());
        QVERIFY(tree.data(index, RoleHasChildren).toBool() && tree.data({}, 259).toBool());
        QVERIFY(!tree.data(tree.index(0, 0, index), RoleHasChildren).toBool());
        QCOMPARE(changes.count(), 0);

        // A stale index answers as if there were no node, and its extras pass on to no other.
        tree.deleteTreeNodeByIndex(index);
        for (int key = 3; key < 50; ++key)
            tree.createTreeNode({key, 0}, tree.root());
        QVERIFY(!tree.nodeFromIndex(index) && !tree.parent(index).isValid());
        QVERIFY(tree.setData(index, true, RolePlaying) && !tree.havePlayingNode());
        QVERIFY(tree.rowCount(index) == 0 && !tree.data(index, RolePlaying).toBool());
        for (int row = 0; row < tree.rowCount(); ++row)
            QVERIFY(!tree.data(tree.index(row, 0), RoleEditState).isValid());
        tree.deleteTreeNodeByIndex(index);
        QCOMPARE(tree.rowCount(), 47);
        tree.deleteTreeNodeByIndex({});
        QVERIFY(!tree.getFirstIndex().isValid());
    }

    void checksAndExpansionAreCollected()
    {
        Tree tree;
        const NodePtr site = tree.createTreeNode({2, 0}, tree.root());
        const NodePtr camera = tree.createTreeNode({1, 0}, site);
        tree.createTreeNode({3, 0}, site);
        QMap<Id, Qt::CheckState> states;
        tree.regCheckCountChangeCb(
            [&states](const QMap<Id, Qt::CheckState> &map) { states = map; });
        tree.setAllCheckStateWithFilter(Qt::Checked,
                                        [](Node *node) { return node->nodeId.key < 3; });
        QVERIFY(states.size() == 4 && states.value({3, 0}) == Qt::Unchecked);
        QVERIFY(states.contains({}) && tree.root()->checkState == Qt::Unchecked);
        QCOMPARE(tree.getCheckedNode(false), QList<Id>{camera->nodeId});
        QCOMPARE(tree.getCheckedNode(true), (QList<Id>{camera->nodeId, site->nodeId}));
        QVERIFY_EXCEPTION_THROWN(tree.setAllCheckStateWithFilter(Qt::Checked, {}),
                                 std::bad_function_call);

        const CusMulSelectedComboboxModel &popupModel = tree;
        QCOMPARE(popupModel.getNeedShowNodeCount(), 1);
        tree.setAllNodeExpandState(true);
        QCOMPARE(tree.getExpandNode(), QList<Id>{site->nodeId});
        QCOMPARE(tree.getNeedShowNodeCount(), 3);
        QVERIFY(tree.clearChildNode(site) && !tree.clearChildNode(site));
        QVERIFY(tree.expandRows().isEmpty() && !site->expanded);
        QCOMPARE(Tree::findNodeFromContainer(tree.root()->children, {2, 0}), site);
        tree.clearEmptyNodeByNodeId({2, 0});
        QCOMPARE(tree.rowCount(), 0);
    }

    void filterDecidesWhichIdentitiesExist()
    {
        Tree tree;
        const NodePtr held = tree.createTreeNode({1, 0}, tree.root());
        tree.createTreeNode({2, 0}, held);
        tree.createTreeNode({4, 0}, tree.createTreeNode({3, 0}, tree.root()));
        QList<int> asked;
        tree.registerFilterNodeId([&](const Id &id) {
            asked += id.key;
            tree.root()->sortChild(
                [](const NodePtr &a, const NodePtr &b) { return a->nodeId < b->nodeId; });
            return id.key % 2 == 0;
        });
        QCOMPARE(asked, (QList<int>{1, 2, 3})); // nobody holds what stood below the third
        QVERIFY(tree.rowCount() == 0 && !tree.findNodeByNodeId({4, 0}));
        QVERIFY(!tree.findNodeByNodeId({1, 0}) && !tree.createTreeNode({1, 0}, tree.root()));
        QVERIFY(!tree.findOrCreateTreeNode({1, 0}, tree.root()));
        QVERIFY(tree.findNodeByNodeId({2, 0}) && held->children.size() == 1);
        QVERIFY(held->parentNode.expired() && !tree.indexFromNodeId({2, 0}).isValid());
    }

    void mayBeDeletedByWhatItCalls()
    {
        QPointer<Tree> tree;
        const auto die = [&tree] {
            delete tree;
            return true;
        };
        const QList<std::function<void()>> calls{
            [&] {
                tree->regCheckCountChangeCb([&](const QMap<Id, Qt::CheckState> &) { die(); });
                tree->setCheckedData({}, Qt::Checked);
            },
            [&] { tree->registerFilterNodeId([&](const Id &) { return !die(); }); },
            [&] { tree->setAllCheckStateWithFilter(Qt::Checked, [&](Node *) { return die(); }); },
            [&] {
                Node *const root = tree->root().get();
                root->sortChild([&](const NodePtr &, const NodePtr &) { return die(); });
            },
            [&] {
                connect(tree, &QAbstractItemModel::modelReset, this, die);
                tree->clearEmptyNodeByNodeId({3, 0});
            },
        };
        for (const auto &call : calls) {
            tree = new Tree;
            for (int key = 0; key < 5; ++key)
                tree->createTreeNode({key, 0}, tree->root());
            call();
            QVERIFY(!tree);
        }
    }
};

QTEST_GUILESS_MAIN(TestBasicTreeModel)
#include "tst_basictreemodel.moc"
