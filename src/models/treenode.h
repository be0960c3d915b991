#pragma once

#include "models/addressset.h"
#include "models/safesort.h"

#include <QList>

#include <functional>
#include <memory>
#include <utility>
#include <vector>

template <typename T>
class BasicTreeModel;
namespace vellum {
template <typename T>
class NodeMap;
}

/// One node of a tree, always held by std::shared_ptr; BasicTreeModel::createTreeNode() makes them.
/// The identity is the first member, so that the address of a node is that of its identity.
template <typename T>
struct TreeNode
{
    using Ptr = std::shared_ptr<TreeNode>;
    using Order = std::function<bool(const Ptr &, const Ptr &)>;

    explicit TreeNode(const T &id)
        : nodeId(id)
    {
    }
    ~TreeNode();

    /// Sorts the children by \a order, or by their addresses if it is empty, and those of every
    /// node below. \a order is not asked about null children, which go last.
    void sortChild(const Order &order);

    T nodeId;
    int checkState = 0;      ///< a Qt::CheckState
    bool rowHidden = false;  ///< CusItemDataRole::RoleRowHidden
    bool playing = false;    ///< CusItemDataRole::RolePlaying
    int borderKind = 0;      ///< CusItemDataRole::RoleBorderKind
    bool nodeEnabled = true; ///< for a derived model
    bool nodeFlag = false;   ///< for a derived model
    bool expanded = false;   ///< CusItemDataRole::RoleExpanded
    std::weak_ptr<TreeNode> parentNode;
    QList<Ptr> children; ///< in the order they are shown

private:
    friend class BasicTreeModel<T>;
    friend class vellum::NodeMap<T>;
    Q_DISABLE_COPY(TreeNode)

    void sortOwnChildren(const Order &order);
    int rowOf(const TreeNode *child);

    // Views ask every row for its parent: what answers that stands beside parentNode in memory.
    TreeNode *m_parentHint = nullptr; // what parentNode was last
    int m_rowHint = 0;                // where the parent had this node last
    unsigned m_checked = 0;           // number of the walk that found out m_reachable
    bool m_reachable = false;
    std::weak_ptr<TreeNode> m_self;
    std::shared_ptr<vellum::AddressSet> m_addresses; // those of the model that made this node
};

template <typename T>
TreeNode<T>::~TreeNode()
{
    if (m_addresses)
        m_addresses->remove(this);
    if (children.isEmpty())
        return;
    // A chain of nodes would otherwise be destroyed by as many nested calls. Children that somebody
    // else holds, by themselves or in a copy of the list, keep theirs.
    std::vector<QList<Ptr>> orphans;
    orphans.push_back(std::move(children));
    while (!orphans.empty()) {
        const QList<Ptr> list = std::move(orphans.back());
        orphans.pop_back();
        if (!list.isDetached())
            continue;
        for (const Ptr &child : list) {
            if (child.use_count() == 1 && !child->children.isEmpty())
                orphans.push_back(std::move(child->children));
        }
    }
}

template <typename T>
void TreeNode<T>::sortChild(const Order &order)
{
    const Order less = order ? order : Order(std::less<Ptr>());
    // The order may let go of the tree while it is asked.
    const Ptr self =
        children.isEmpty() || !children.first() ? Ptr() : children.first()->parentNode.lock();
    std::vector<Ptr> pending;
    const auto sortOne = [&less, &pending](TreeNode *node) {
        node->sortOwnChildren(less);
        for (const Ptr &child : qAsConst(node->children)) {
            if (child && !child->children.isEmpty())
                pending.push_back(child);
        }
    };
    sortOne(this);
    while (!pending.empty()) {
        const Ptr node = std::move(pending.back());
        pending.pop_back();
        sortOne(node.get());
    }
}

template <typename T>
void TreeNode<T>::sortOwnChildren(const Order &order)
{
    QList<Ptr> before = children;
    std::vector<int> places =
        vellum::sortedOrder(before, [&order](const Ptr &left, const Ptr &right) {
            return left && right ? order(left, right) : left && !right;
        });
    if (!children.isSharedWith(before))
        return; // the order changed them
    before.clear();
    vellum::applyOrder(children, std::move(places));
}

/// The place of \a child among the children, -1 if it isn't one.
template <typename T>
int TreeNode<T>::rowOf(const TreeNode *child)
{
    if (child->m_rowHint < children.size() && children.at(child->m_rowHint).get() == child)
        return child->m_rowHint;
    // What moved one child moved its neighbours, too; so they all learn their place.
    int row = -1;
    for (int i = children.size() - 1; i >= 0; --i) {
        TreeNode *const other = children.at(i).get();
        if (other)
            other->m_rowHint = i;
        if (other == child)
            row = i;
    }
    return row;
}
