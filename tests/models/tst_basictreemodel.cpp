#include "support/guardedtest.h"

#include <Vellum/BasicTreeModel>
#include <Vellum/CusItemDataRole>
#include <Vellum/CusMulSelectedComboboxModel>
#include <Vellum/TreeNode>

#include <QAbstractItemModelTester>
#include <QTreeView>
#include <QtTest>

#include <random>

namespace {

/// Keyed by the first field, equal by both.
struct Id
{
    int key = -1;
    int tail = 0;
};
bool operator<(const Id &left, const Id &right)
{
    return left.key < right.key;
}
bool operator==(const Id &left, const Id &right)
{
    return left.key == right.key && left.tail == right.tail;
}

using Node = TreeNode<Id>;
using NodePtr = std::shared_ptr<Node>;
using Path = QList<int>;

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
    Path search(const Node *node, const Id &id, const Path &path = {}) const
    {
        for (int i = 0; i < node->children.size(); ++i) {
            const NodePtr found = byAddress(node->children.at(i).get());
            if (found && found->nodeId == id)
                return path + Path{i};
            const Path below = found ? search(found.get(), id, path + Path{i}) : Path();
            if (!below.isEmpty())
                return below;
        }
        return {};
    }
    QString expandRows() const
    {
        QString text;
        for (const auto &entry : map) {
            const NodePtr node = entry.lock();
            if (!node || !node->expanded)
                continue;
            node->expanded = !node->children.isEmpty();
            const Path path = node->expanded ? search(root.get(), node->nodeId) : Path();
            if (!path.isEmpty())
                text += QStringLiteral("%1:%2 ").arg(path.last()).arg(textOf(node.get()));
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
    void shortcutsAgreeWithTheWalks_data()
    {
        QTest::addColumn<bool>("fast");
        QTest::newRow("by address") << false;
        QTest::newRow("by identity") << true;
    }

    /// With doubled identities, kept orphans, and branches that were deleted by half.
    void shortcutsAgreeWithTheWalks()
    {
        QFETCH(bool, fast);
        std::mt19937 random(5);
        for (int round = 0; round < 60; ++round) {
            Tree tree;
            Oracle oracle;
            QList<NodePtr> kept;
            tree.setFast(fast);
            oracle.fast = fast;
            for (int step = 0; step < 60; ++step) {
                oneStep(random, tree, oracle, kept);
                QCOMPARE(tree.rows(), oracle.rows(oracle.root.get()));
                QCOMPARE(tree.expandRows(), oracle.expandRows());
                for (const Id &id : {Id{step % 14, 0}, Id{step % 14, 1}}) {
                    QCOMPARE(textOf(tree.findNodeByNodeId(id).get()),
                             textOf(oracle.find(id).get()));
                    const Path path = oracle.search(oracle.root.get(), id);
                    QCOMPARE(tree.indexFromNodeId(id).row(), path.isEmpty() ? -1 : path.last());
                }
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
        const QModelIndex index = tree.getFirstIndex();
        const QSignalSpy changes(&tree, &QAbstractItemModel::dataChanged);
        using namespace CusItemDataRole;
        for (const int role : {RoleRowHidden, RoleExpanded, RolePlaying}) {
            QCOMPARE(tree.data(index, role), QVariant(false));
            QVERIFY(tree.setData(index, 1, role));
            QCOMPARE(tree.data(index, role), QVariant(true));
        }
        QVERIFY(site->rowHidden && site->expanded && site->playing && tree.havePlayingNode());
        QCOMPARE(tree.data(index, RoleHasChildren), QVariant(true));
        QCOMPARE(tree.data(tree.index(0, 0, index), RoleHasChildren), QVariant(false));
        QCOMPARE(tree.data({}, RoleHasChildren), QVariant(true));
        QVERIFY(!tree.data(index, RoleEditState).isValid());
        tree.setData(index, 35, RoleEditState);
        QCOMPARE(tree.data(index, RoleEditState).toInt(), 35);
        QVERIFY(tree.setData(index, 1, RoleBorderKind) && !tree.data(index, 278).isValid());
        QCOMPARE(changes.count(), 0);

        // A stale index answers as if there were no node, and its extras pass on to no other.
        tree.deleteTreeNodeByIndex(index);
        for (int key = 3; key < 50; ++key)
            tree.createTreeNode({key, 0}, tree.root());
        QVERIFY(!tree.nodeFromIndex(index) && !tree.parent(index).isValid());
        QCOMPARE(tree.rowCount(index), 0);
        QCOMPARE(tree.data(index, RolePlaying), QVariant(false));
        QVERIFY(tree.setData(index, true, RolePlaying) && !tree.havePlayingNode());
        for (int row = 0; row < tree.rowCount(); ++row)
            QVERIFY(!tree.data(tree.index(row, 0), RoleEditState).isValid());
        tree.deleteTreeNodeByIndex(index);
        QCOMPARE(tree.rowCount(), 47);

        tree.deleteTreeNodeByIndex({});
        QCOMPARE(tree.rowCount(), 0);
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
        QCOMPARE(tree.getCheckedNode(false), QList<NodePtr>{camera});
        QCOMPARE(tree.getCheckedNode(true), (QList<NodePtr>{camera, site}));
        QVERIFY_EXCEPTION_THROWN(tree.setAllCheckStateWithFilter(Qt::Checked, {}),
                                 std::bad_function_call);

        QCOMPARE(tree.getNeedShowNodeCount(), 1);
        tree.setAllNodeExpandState(true);
        QCOMPARE(tree.getExpandNode(), QList<NodePtr>{site});
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
        const NodePtr site = tree.createTreeNode({1, 0}, tree.root());
        tree.createTreeNode({2, 0}, site);
        tree.registerFilterNodeId([](const Id &id) { return id.key != 1; });
        QVERIFY(!tree.findNodeByNodeId({1, 0}) && !tree.createTreeNode({1, 0}, tree.root()));
        QVERIFY(!tree.findOrCreateTreeNode({1, 0}, tree.root()));
        QVERIFY(tree.findNodeByNodeId({2, 0}) && site->children.size() == 1);
        QVERIFY(site->parentNode.expired() && !tree.indexFromNodeId({2, 0}).isValid());
    }

    void mayBeDeletedByWhatItCalls()
    {
        const QList<std::function<void(Tree *, const std::function<void()> &)>> calls{
            [](Tree *tree, const std::function<void()> &die) {
                tree->regCheckCountChangeCb([&die](const QMap<Id, Qt::CheckState> &) { die(); });
                tree->setCheckedData({}, Qt::Checked);
            },
            [](Tree *tree, const std::function<void()> &die) {
                tree->registerFilterNodeId([&die](const Id &) {
                    die();
                    return false;
                });
            },
            [](Tree *tree, const std::function<void()> &die) {
                tree->setAllCheckStateWithFilter(Qt::Checked, [&die](Node *) {
                    die();
                    return true;
                });
            },
            [](Tree *tree, const std::function<void()> &die) {
                Node *const root = tree->root().get();
                root->sortChild([&die](const NodePtr &left, const NodePtr &right) {
                    die();
                    return left->nodeId.key > right->nodeId.key;
                });
            },
            [](Tree *tree, const std::function<void()> &die) {
                connect(tree, &QAbstractItemModel::modelReset, tree, die);
                tree->clearEmptyNodeByNodeId({3, 0});
            },
        };
        for (const auto &call : calls) {
            QPointer<Tree> tree = new Tree;
            for (int key = 0; key < 5; ++key)
                tree->createTreeNode({key, 0}, tree->root());
            call(tree, [&tree] { delete tree; });
            QVERIFY(!tree);
        }
    }

    void viewRestoresExpansionAfterAReset()
    {
        Tree tree;
        for (int site = 0; site < 20; ++site) {
            const NodePtr node = tree.createTreeNode({site, 0}, tree.root());
            for (int camera = 0; camera < 5; ++camera)
                tree.createTreeNode({100 * (site + 1) + camera, 0}, node);
        }
        QTreeView view;
        view.setModel(&tree);
        view.expandAll();
        tree.setAllNodeExpandState(true);
        tree.root()->sortChild([](const NodePtr &left, const NodePtr &right) {
            return left->nodeId.key > right->nodeId.key;
        });
        tree.deleteTreeNodeByNodeId({7, 0});
        QList<QModelIndex> indexes;
        tree.getExpandIndex(indexes);
        QCOMPARE(indexes.size(), 19);
        for (const QModelIndex &index : qAsConst(indexes))
            view.setExpanded(index, true);
        QCOMPARE(tree.getFirstIndex().data().toString(), QStringLiteral("19.0"));
        QModelIndex last = tree.getFirstIndex();
        int rows = 0;
        for (QModelIndex at = last; at.isValid(); at = view.indexBelow(at), ++rows)
            last = at;
        QCOMPARE(rows, 19 * 6);
        QCOMPARE(last.data().toString(), QStringLiteral("100.0"));
    }
};

QTEST_MAIN(TestBasicTreeModel)
#include "tst_basictreemodel.moc"
