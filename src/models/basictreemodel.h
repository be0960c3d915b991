#pragma once

#include "models/cusitemdatarole.h"
#include "models/cusmulselectedcomboboxmodel.h"
#include "models/nodemap.h"
#include "models/recordtypes.h"
#include "models/treenode.h"

#include <QAbstractItemModel>
#include <QList>
#include <QMap>
#include <QPointer>
#include <QSet>
#include <QVariant>

#include <algorithm>
#include <functional>
#include <iterator>
#include <memory>
#include <utility>
#include <vector>

/// A tree of shared nodes with one column, looked up by identity. A concrete model derives from an
/// instantiation, makes the root in its constructor (rootNode = createTreeNode(T(), nullptr)) and
/// supplies nodeIndexToText() and the roles of its own. T needs operator==, which tells two
/// identities apart in a search, and operator<, which keys the map of nodes.
///
/// Changes of the structure are told by a full reset (resetModelData()), those of a role not at
/// all: views restore expansion from getExpandIndex() and repaint by themselves. An index may be
/// older than the tree: its pointer is looked up, never looked into, and a stale one answers as if
/// there were no node. A node's identity changes through updateNodeId() only.
///
/// All on the GUI thread. Callbacks may call the model again or delete it. No operation recurses,
/// so a tree may be as deep as memory allows.
template <typename T>
class BasicTreeModel : public QAbstractItemModel, public CusMulSelectedComboboxModel
{
public:
    using Node = TreeNode<T>;
    using NodePtr = std::shared_ptr<Node>;
    using NodeIdFilter = std::function<bool(const T &)>;
    using CheckCountCallback = std::function<void(QMap<T, Qt::CheckState>)>;

    explicit BasicTreeModel(QObject *parent = nullptr);

    /// Answers the display role and, of CusItemDataRole, RoleRowHidden, RoleHasChildren,
    /// RoleExpanded, RolePlaying and RoleEditState. The invalid index is the root.
    QVariant data(const QModelIndex &index, int role = Qt::DisplayRole) const override;
    /// Stores RoleRowHidden, RoleExpanded, RolePlaying and RoleEditState; true for any role.
    bool setData(const QModelIndex &index, const QVariant &value, int role = Qt::EditRole) override;
    int columnCount(const QModelIndex &parent = QModelIndex()) const override;
    int rowCount(const QModelIndex &parent = QModelIndex()) const override;
    QModelIndex index(int row, int column,
                      const QModelIndex &parent = QModelIndex()) const override;
    QModelIndex parent(const QModelIndex &child) const override;
    int getNeedShowNodeCount() const override;

    /// Deletes the node and all below it, by their identities, and resets.
    virtual void deleteTreeNodeByNodeId(const T &id);
    /// The same for the node at \a index, the invalid index being the root; a stale one does
    /// nothing.
    virtual void deleteTreeNodeByIndex(const QModelIndex &index);
    /// The first row with this identity, in the order of the rows; invalid without one.
    virtual QModelIndex indexFromNodeId(const T &id) const;
    /// The same among the rows below \a parent.
    virtual QModelIndex findChildIndexByNodeId(const QModelIndex &parent, const T &id) const;
    /// Resets the views.
    virtual void resetModelData();
    /// Tells the callback of regCheckCountChangeCb(), and stores nothing: a derived model writes
    /// the node first. True.
    virtual bool setCheckedData(const QModelIndex &index, Qt::CheckState state);
    /// Gives every node the state and tells the callback.
    virtual void setAllCheckState(Qt::CheckState state);
    /// The same for the nodes that \a filter accepts. \a filter is mandatory: an empty one throws
    /// std::bad_function_call.
    virtual void setAllCheckStateWithFilter(Qt::CheckState state,
                                            const std::function<bool(Node *)> &filter);
    /// What \a filter answers for \a id; an empty one lets all pass.
    virtual bool callFiterNodeIdCb(const NodeIdFilter &filter, const T &id) const;

    /// A new node as last child of \a parent, which may be null; null if the filter rejects \a id.
    /// Of several nodes with one identity only the newest can be found. No reset.
    NodePtr createTreeNode(const T &id, const NodePtr &parent);
    /// The node of this identity, created below \a parent if there is none.
    NodePtr findOrCreateTreeNode(const T &id, const NodePtr &parent);
    /// Null without one.
    NodePtr findNodeByNodeId(const T &id) const;
    /// The first of \a nodes, such as TreeNode::children, with this identity; null without one.
    static NodePtr findNodeFromContainer(const QList<NodePtr> &nodes, const T &id);
    /// The node at \a index, the invalid index being the root; null for a stale one.
    NodePtr nodeFromIndex(const QModelIndex &index) const;
    /// Takes apart all that is below \a node, without a reset; false if there is nothing.
    bool clearChildNode(const NodePtr &node);
    /// Deletes the node and resets if it has no children.
    void clearEmptyNodeByNodeId(const T &id);
    /// Overwrites the identity of the node that has an equal one by T::operator<. No reset.
    void updateNodeId(const T &id);

    /// The identities, in their order, of the nodes that are Qt::Checked; those of nodes with
    /// children only if \a withBranches is true.
    QList<T> getCheckedNode(bool withBranches) const;
    /// The identities, in their order, of the nodes that are expanded.
    QList<T> getExpandNode() const;
    /// Replaces \a indexes by those of the expanded nodes, in the order of their identities. A node
    /// that has lost its children is collapsed by that.
    void getExpandIndex(QList<QModelIndex> &indexes) const;
    /// The first row; invalid without one.
    QModelIndex getFirstIndex() const;
    bool havePlayingNode() const;
    /// Marks every node that has children, without a reset.
    void setAllNodeExpandState(bool expanded);

    /// Called after a change of checks with the states of all nodes in the tree, the root included.
    void regCheckCountChangeCb(const CheckCountCallback &callback);
    /// Asked for every identity that is created from now on, and at once for every one that there
    /// is: a node that fails leaves the tree with all below it, which is not asked about then
    /// unless somebody holds it. No reset.
    void registerFilterNodeId(const NodeIdFilter &filter);
    void callCheckCountChangeCb();

protected:
    /// The text of \a index for Qt::DisplayRole; empty here.
    virtual QString nodeIndexToText(const QModelIndex &index) const;

    NodePtr rootNode;           ///< invisible; null until a derived model makes it
    vellum::NodeMap<T> nodeMap; ///< a root made by createTreeNode() is in it, too
    QMap<QModelIndex, QMap<int, QVariant>> indexExtra;
    CheckCountCallback checkCountCb;
    /// An index of a node whose identity was given to a newer one answers for the newer one,
    /// instead of for none.
    bool fastFindByPtr = false;
    NodeIdFilter filterNodeIdCb;

private:
    NodePtr findNodeByPtr(Node *address) const;
    Node *nodeAt(const QModelIndex &index) const;
    Node *parentOf(Node *node) const;
    int getNeedShowCount(const NodePtr &node) const;
    void deleteTreeNodeWithChild(const T &id);
    template <typename Accepts>
    std::vector<NodePtr> nodesWith(const Accepts &accepts) const;
    static QList<T> identitiesOf(const std::vector<NodePtr> &nodes);
    bool isReachable(const Node *top, Node *node) const;
    QModelIndex searchBelow(const Node *top, const T &id) const;
    NodePtr takeOut(const NodePtr &node);
    void dropStaleExtras();

    mutable unsigned m_walk = 0;
    mutable bool m_walking = false;
};

template <typename T>
BasicTreeModel<T>::BasicTreeModel(QObject *parent)
    : QAbstractItemModel(parent)
{
    vellum::registerRecordTypes();
}

template <typename T>
QVariant BasicTreeModel<T>::data(const QModelIndex &index, int role) const
{
    switch (role) {
    case Qt::DisplayRole:
        return nodeIndexToText(index);
    case CusItemDataRole::RoleRowHidden:
    case CusItemDataRole::RoleHasChildren:
    case CusItemDataRole::RoleExpanded:
    case CusItemDataRole::RolePlaying:
    case CusItemDataRole::RoleEditState:
        break;
    default:
        return {};
    }
    const Node *const node = nodeAt(index);
    switch (role) {
    case CusItemDataRole::RoleRowHidden:
        return node && node->rowHidden;
    case CusItemDataRole::RoleHasChildren:
        return node && !node->children.isEmpty();
    case CusItemDataRole::RoleExpanded:
        return node && node->expanded;
    case CusItemDataRole::RolePlaying:
        return node && node->playing;
    default:
        return node ? indexExtra.value(index).value(role) : QVariant();
    }
}

template <typename T>
bool BasicTreeModel<T>::setData(const QModelIndex &index, const QVariant &value, int role)
{
    Node *const node = nodeAt(index);
    if (!node)
        return true;
    if (role == CusItemDataRole::RoleRowHidden)
        node->rowHidden = value.toBool();
    else if (role == CusItemDataRole::RoleExpanded)
        node->expanded = value.toBool();
    else if (role == CusItemDataRole::RolePlaying)
        node->playing = value.toBool();
    else if (role == CusItemDataRole::RoleEditState)
        indexExtra[index].insert(role, value);
    return true;
}

template <typename T>
int BasicTreeModel<T>::columnCount(const QModelIndex &) const
{
    return 1;
}

template <typename T>
int BasicTreeModel<T>::rowCount(const QModelIndex &parent) const
{
    if (parent.column() > 0)
        return 0;
    const Node *const node = nodeAt(parent);
    return node ? node->children.size() : 0;
}

template <typename T>
QModelIndex BasicTreeModel<T>::index(int row, int column, const QModelIndex &parent) const
{
    if (row < 0 || column < 0 || !rootNode)
        return {};
    const Node *const node = nodeAt(parent);
    if (!node || row >= node->children.size())
        return {};
    return createIndex(row, column, node->children.at(row).get());
}

template <typename T>
QModelIndex BasicTreeModel<T>::parent(const QModelIndex &child) const
{
    Node *const node = child.isValid() ? nodeAt(child) : nullptr;
    Node *const above = node && node != rootNode.get() ? parentOf(node) : nullptr;
    if (!above || above == rootNode.get())
        return {};
    Node *const top = parentOf(above);
    const int row = top ? top->rowOf(above) : -1;
    return row < 0 ? QModelIndex() : createIndex(row, 0, above);
}

template <typename T>
int BasicTreeModel<T>::getNeedShowNodeCount() const
{
    if (!rootNode)
        return 0;
    int count = rootNode->children.size();
    for (const NodePtr &child : qAsConst(rootNode->children))
        count += getNeedShowCount(child);
    return count;
}

template <typename T>
int BasicTreeModel<T>::getNeedShowCount(const NodePtr &node) const
{
    int count = 0;
    std::vector<const Node *> pending{node.get()};
    while (!pending.empty()) {
        const Node *const next = pending.back();
        pending.pop_back();
        if (!next || !next->expanded)
            continue;
        count += next->children.size();
        for (const NodePtr &child : next->children)
            pending.push_back(child.get());
    }
    return count;
}

template <typename T>
void BasicTreeModel<T>::deleteTreeNodeByNodeId(const T &id)
{
    deleteTreeNodeWithChild(T(id));
    resetModelData();
}

template <typename T>
void BasicTreeModel<T>::deleteTreeNodeByIndex(const QModelIndex &index)
{
    const NodePtr node = nodeFromIndex(index);
    if (node)
        deleteTreeNodeByNodeId(node->nodeId);
}

/// Deletes by identity all the way down: where one is doubled, its newest node goes, wherever it
/// stands.
template <typename T>
void BasicTreeModel<T>::deleteTreeNodeWithChild(const T &id)
{
    std::vector<NodePtr> deleted; // alive to the end, so that their children can be found
    std::vector<NodePtr> pending;
    const auto deleteOne = [this, &deleted, &pending](const T &nodeId) {
        const NodePtr node = nodeMap.node(nodeId);
        if (!node)
            return;
        if (const NodePtr parent = node->parentNode.lock()) {
            const int row = parent->rowOf(node.get());
            if (row >= 0)
                parent->children.removeAt(row);
        }
        node->parentNode.reset();
        nodeMap.remove(nodeId, node.get());
        pending.insert(pending.end(), node->children.constBegin(), node->children.constEnd());
        deleted.push_back(node);
    };
    deleteOne(id);
    while (!pending.empty()) {
        const NodePtr child = std::move(pending.back());
        pending.pop_back();
        if (child)
            deleteOne(child->nodeId);
    }
    deleted.clear();
    dropStaleExtras();
}

template <typename T>
QModelIndex BasicTreeModel<T>::indexFromNodeId(const T &id) const
{
    return findChildIndexByNodeId(QModelIndex(), id);
}

template <typename T>
QModelIndex BasicTreeModel<T>::findChildIndexByNodeId(const QModelIndex &parent, const T &id) const
{
    const Node *const top = nodeAt(parent);
    if (!top || parent.column() > 0)
        return {};
    const NodePtr node = nodeMap.node(id);
    // The map answers for the search wherever the identity stands once.
    const bool sure = node && node->nodeId == id && !nodeMap.isDoubled(id)
        && !(fastFindByPtr && nodeMap.hasDisplaced());
    if (!sure)
        return searchBelow(top, id);
    if (node.get() == top || !isReachable(top, node.get()))
        return {};
    return createIndex(node->m_rowHint, 0, node.get());
}

/// Whether the rows below \a top lead to \a node, which knows its row then.
template <typename T>
bool BasicTreeModel<T>::isReachable(const Node *top, Node *node) const
{
    std::vector<Node *> path;
    bool reachable = true;
    const bool remember = m_walking && top == rootNode.get();
    for (Node *at = node; at != top;) {
        if (remember && at->m_checked == m_walk) {
            reachable = at->m_reachable;
            break;
        }
        path.push_back(at);
        Node *const parent = parentOf(at);
        reachable = parent && parent->rowOf(at) >= 0 && (parent == top || nodeMap.known(parent));
        if (!reachable)
            break;
        at = parent;
    }
    if (remember) {
        for (Node *at : path) {
            at->m_checked = m_walk;
            at->m_reachable = reachable;
        }
    }
    return reachable;
}

/// The first row below \a top, depth first, that has this identity.
template <typename T>
QModelIndex BasicTreeModel<T>::searchBelow(const Node *top, const T &id) const
{
    struct Step
    {
        const Node *node;
        int row;
    };
    std::vector<Step> path{{top, 0}};
    while (!path.empty()) {
        Step &step = path.back();
        if (step.row >= step.node->children.size()) {
            path.pop_back();
            continue;
        }
        const int row = step.row++;
        Node *const child = step.node->children.at(row).get();
        const QModelIndex index = createIndex(row, 0, child);
        const Node *const found = nodeAt(index);
        if (!found)
            continue;
        if (found->nodeId == id)
            return index;
        path.push_back({found, 0});
    }
    return {};
}

template <typename T>
void BasicTreeModel<T>::resetModelData()
{
    dropStaleExtras();
    beginResetModel();
    endResetModel();
}

template <typename T>
bool BasicTreeModel<T>::setCheckedData(const QModelIndex &, Qt::CheckState)
{
    callCheckCountChangeCb();
    return true;
}

template <typename T>
void BasicTreeModel<T>::setAllCheckState(Qt::CheckState state)
{
    for (const NodePtr &node : nodesWith([](const Node &) { return true; }))
        node->checkState = state;
    callCheckCountChangeCb();
}

template <typename T>
void BasicTreeModel<T>::setAllCheckStateWithFilter(Qt::CheckState state,
                                                   const std::function<bool(Node *)> &filter)
{
    const QPointer<QAbstractItemModel> self(this);
    const std::function<bool(Node *)> accepts = filter;
    for (const NodePtr &node : nodesWith([](const Node &) { return true; })) {
        const bool accepted = accepts(node.get());
        if (!self)
            return;
        if (accepted)
            node->checkState = state;
    }
    callCheckCountChangeCb();
}

template <typename T>
bool BasicTreeModel<T>::callFiterNodeIdCb(const NodeIdFilter &filter, const T &id) const
{
    return !filter || filter(id);
}

template <typename T>
typename BasicTreeModel<T>::NodePtr BasicTreeModel<T>::createTreeNode(const T &id,
                                                                      const NodePtr &parent)
{
    const QPointer<QAbstractItemModel> self(this);
    const NodeIdFilter filter = filterNodeIdCb;
    // What the filter calls may change what the references refer to.
    const T nodeId = id;          // NOLINT(performance-unnecessary-copy-initialization)
    const NodePtr above = parent; // NOLINT(performance-unnecessary-copy-initialization)
    if (!callFiterNodeIdCb(filter, nodeId) || !self)
        return {};
    NodePtr node = std::make_shared<Node>(nodeId);
    node->parentNode = above;
    node->m_parentHint = above.get();
    if (above) {
        node->m_rowHint = above->children.size();
        above->children.append(node);
    }
    nodeMap.insert(nodeId, node);
    return node;
}

template <typename T>
typename BasicTreeModel<T>::NodePtr BasicTreeModel<T>::findOrCreateTreeNode(const T &id,
                                                                            const NodePtr &parent)
{
    NodePtr node = nodeMap.node(id);
    return node ? node : createTreeNode(id, parent);
}

template <typename T>
typename BasicTreeModel<T>::NodePtr BasicTreeModel<T>::findNodeByNodeId(const T &id) const
{
    return nodeMap.node(id);
}

template <typename T>
typename BasicTreeModel<T>::NodePtr
BasicTreeModel<T>::findNodeFromContainer(const QList<NodePtr> &nodes, const T &id)
{
    for (const NodePtr &node : nodes) {
        if (node && node->nodeId == id)
            return node;
    }
    return {};
}

template <typename T>
typename BasicTreeModel<T>::NodePtr BasicTreeModel<T>::nodeFromIndex(const QModelIndex &index) const
{
    if (!index.isValid())
        return rootNode;
    return index.model() == this ? findNodeByPtr(static_cast<Node *>(index.internalPointer()))
                                 : NodePtr();
}

template <typename T>
typename BasicTreeModel<T>::NodePtr BasicTreeModel<T>::findNodeByPtr(Node *address) const
{
    if (NodePtr node = nodeMap.lock(address))
        return node;
    const NodePtr older = fastFindByPtr ? nodeMap.displaced(address) : NodePtr();
    return older ? nodeMap.node(older->nodeId) : NodePtr();
}

/// nodeFromIndex() without a share in the node, for as long as nobody else is called.
template <typename T>
typename BasicTreeModel<T>::Node *BasicTreeModel<T>::nodeAt(const QModelIndex &index) const
{
    if (!index.isValid())
        return rootNode.get();
    if (index.model() != this)
        return nullptr;
    Node *const node = nodeMap.known(index.internalPointer());
    return node || !fastFindByPtr ? node : nodeFromIndex(index).get();
}

/// The parent of \a node, null without one. Views ask every row for it, and a share in the parent
/// would be written to memory each time; so a hint is proved instead, by the owner it has.
template <typename T>
typename BasicTreeModel<T>::Node *BasicTreeModel<T>::parentOf(Node *node) const
{
    Node *const hint = nodeMap.known(node->m_parentHint);
    if (hint && !hint->m_self.owner_before(node->parentNode)
        && !node->parentNode.owner_before(hint->m_self))
        return hint;
    node->m_parentHint = node->parentNode.lock().get();
    return node->m_parentHint;
}

template <typename T>
bool BasicTreeModel<T>::clearChildNode(const NodePtr &node)
{
    if (!node || node->children.isEmpty())
        return false;
    std::vector<QList<NodePtr>> pending;
    pending.push_back(std::move(node->children));
    while (!pending.empty()) {
        const QList<NodePtr> list = std::move(pending.back());
        pending.pop_back();
        for (const NodePtr &child : list) {
            if (!child)
                continue;
            child->parentNode.reset();
            nodeMap.remove(child->nodeId, child.get());
            if (!child->children.isEmpty())
                pending.push_back(std::move(child->children));
        }
    }
    dropStaleExtras();
    return true;
}

template <typename T>
void BasicTreeModel<T>::clearEmptyNodeByNodeId(const T &id)
{
    const NodePtr node = nodeMap.node(id);
    if (node && node->children.isEmpty())
        deleteTreeNodeByNodeId(id);
}

template <typename T>
void BasicTreeModel<T>::updateNodeId(const T &id)
{
    const T nodeId = id; // NOLINT(performance-unnecessary-copy-initialization)
    const NodePtr node = nodeMap.node(nodeId);
    if (!node)
        return;
    node->nodeId = nodeId;
    nodeMap.insert(nodeId, node);
}

/// The nodes of the map but for the root, in its order, for which \a accepts(node) holds.
template <typename T>
template <typename Accepts>
std::vector<typename BasicTreeModel<T>::NodePtr>
BasicTreeModel<T>::nodesWith(const Accepts &accepts) const
{
    std::vector<NodePtr> nodes;
    for (const auto &entry : nodeMap) {
        if (!entry.expired() && entry.address != rootNode.get() && accepts(*entry.address))
            nodes.push_back(entry.lock());
    }
    return nodes;
}

template <typename T>
QList<T> BasicTreeModel<T>::identitiesOf(const std::vector<NodePtr> &nodes)
{
    QList<T> ids;
    ids.reserve(int(nodes.size()));
    for (const NodePtr &node : nodes)
        ids.append(node->nodeId);
    return ids;
}

template <typename T>
QList<T> BasicTreeModel<T>::getCheckedNode(bool withBranches) const
{
    return identitiesOf(nodesWith([withBranches](const Node &node) {
        return node.checkState == Qt::Checked && (withBranches || node.children.isEmpty());
    }));
}

template <typename T>
QList<T> BasicTreeModel<T>::getExpandNode() const
{
    return identitiesOf(nodesWith([](const Node &node) { return node.expanded; }));
}

template <typename T>
void BasicTreeModel<T>::getExpandIndex(QList<QModelIndex> &indexes) const
{
    indexes.clear();
    // While the tree stands still, each node is followed up to the root once.
    ++m_walk;
    m_walking = true;
    for (const NodePtr &node : nodesWith([](const Node &any) { return any.expanded; })) {
        node->expanded = !node->children.isEmpty();
        const QModelIndex index = node->expanded ? indexFromNodeId(node->nodeId) : QModelIndex();
        if (index.isValid())
            indexes.append(index);
    }
    m_walking = false;
}

template <typename T>
QModelIndex BasicTreeModel<T>::getFirstIndex() const
{
    return index(0, 0);
}

template <typename T>
bool BasicTreeModel<T>::havePlayingNode() const
{
    return !nodesWith([](const Node &node) { return node.playing; }).empty();
}

template <typename T>
void BasicTreeModel<T>::setAllNodeExpandState(bool expanded)
{
    for (const NodePtr &node : nodesWith([](const Node &any) { return !any.children.isEmpty(); }))
        node->expanded = expanded;
}

template <typename T>
void BasicTreeModel<T>::regCheckCountChangeCb(const CheckCountCallback &callback)
{
    checkCountCb = callback;
}

template <typename T>
void BasicTreeModel<T>::registerFilterNodeId(const NodeIdFilter &filter)
{
    filterNodeIdCb = filter;
    const NodeIdFilter passes = filter;
    if (!passes)
        return;
    const QPointer<QAbstractItemModel> self(this);
    // Weak, as nodes that go with a rejected one are not asked about.
    std::vector<std::weak_ptr<Node>> asked;
    for (const auto &entry : nodeMap) {
        if (entry.address != rootNode.get())
            asked.push_back(entry);
    }
    std::vector<std::weak_ptr<Node>> parents;
    QSet<const Node *> seen; // the weak pointers keep their addresses from being used again
    for (const std::weak_ptr<Node> &weak : asked) {
        const NodePtr node = weak.lock();
        const bool stays = !node || callFiterNodeIdCb(passes, node->nodeId);
        if (!self)
            break;
        const NodePtr parent = stays ? NodePtr() : takeOut(node);
        if (!parent || seen.contains(parent.get()))
            continue;
        seen.insert(parent.get());
        parents.push_back(parent);
    }
    for (const std::weak_ptr<Node> &weak : parents) {
        if (const NodePtr parent = weak.lock())
            parent->children.removeAll(NodePtr());
    }
    if (self)
        dropStaleExtras();
}

/// Takes \a node out of the map and from its parent, which is returned and has a null child in its
/// place: to close the ranks for each would cost the square of their number.
template <typename T>
typename BasicTreeModel<T>::NodePtr BasicTreeModel<T>::takeOut(const NodePtr &node)
{
    if (nodeMap.node(node->nodeId) == node)
        nodeMap.remove(node->nodeId, node.get());
    NodePtr parent = node->parentNode.lock();
    node->parentNode.reset();
    const int row = parent ? parent->rowOf(node.get()) : -1;
    if (row < 0)
        return {};
    parent->children[row].reset();
    return parent;
}

template <typename T>
void BasicTreeModel<T>::callCheckCountChangeCb()
{
    const CheckCountCallback callback = checkCountCb;
    if (!callback)
        return;
    QMap<T, Qt::CheckState> states;
    std::vector<const Node *> pending{rootNode.get()};
    while (!pending.empty()) {
        const Node *const node = pending.back();
        pending.pop_back();
        if (!node)
            continue;
        states.insert(node->nodeId, Qt::CheckState(node->checkState));
        for (int i = node->children.size() - 1; i >= 0; --i)
            pending.push_back(node->children.at(i).get());
    }
    callback(states);
}

template <typename T>
QString BasicTreeModel<T>::nodeIndexToText(const QModelIndex &) const
{
    return {};
}

/// Forgets the extras of nodes that are gone or moved: a new node may get the address of an old
/// one.
template <typename T>
void BasicTreeModel<T>::dropStaleExtras()
{
    for (auto at = indexExtra.begin(); at != indexExtra.end();) {
        const QModelIndex &index = at.key();
        const Node *const node = nodeMap.known(index.internalPointer());
        const NodePtr parent = node ? node->parentNode.lock() : NodePtr();
        const bool stands =
            !index.isValid() || (parent && parent->children.value(index.row()).get() == node);
        at = stands ? std::next(at) : indexExtra.erase(at);
    }
}
