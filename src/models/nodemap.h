#pragma once

#include "models/addressset.h"
#include "models/treenode.h"

#include <QHash>
#include <QMap>

#include <iterator>
#include <memory>

namespace vellum {

/// The nodes of a tree by identity, in the order of T::operator<, and the same nodes by address.
///
/// Reads like the QMap that it holds. The entries are weak: a node that the tree lets go of dies at
/// once, and looks like one that never was. A doubled identity has one entry, that of its newest
/// node, and the address of an older one is unknown.
template <typename T>
class NodeMap
{
public:
    using Node = TreeNode<T>;
    struct Entry : public std::weak_ptr<Node>
    {
        Entry() = default;
        explicit Entry(const std::shared_ptr<Node> &node)
            : std::weak_ptr<Node>(node)
            , address(node.get())
        {
        }
        Node *address = nullptr; ///< to be looked into only while the entry is not expired
    };
    using Map = QMap<T, Entry>;

    typename Map::const_iterator begin() const { return m_byId.constBegin(); }
    typename Map::const_iterator end() const { return m_byId.constEnd(); }
    typename Map::const_iterator constBegin() const { return m_byId.constBegin(); }
    typename Map::const_iterator constEnd() const { return m_byId.constEnd(); }
    bool contains(const T &id) const { return m_byId.contains(id); }
    int size() const { return m_byId.size(); }

    std::weak_ptr<Node> value(const T &id) const { return m_byId.value(id); }
    std::shared_ptr<Node> node(const T &id) const { return m_byId.value(id).lock(); }

    /// \a address if a live node of ours is there, else null. It is not looked into.
    Node *known(void *address) const
    {
        return m_byAddress->contains(address) ? static_cast<Node *>(address) : nullptr;
    }
    std::shared_ptr<Node> lock(void *address) const
    {
        const Node *const node = known(address);
        return node ? node->m_self.lock() : std::shared_ptr<Node>();
    }

    /// The live node at \a address that lost its entry to a newer one of its identity.
    std::shared_ptr<Node> displaced(const void *address) const
    {
        return m_displaced.value(address).lock();
    }
    bool hasDisplaced() const { return !m_displaced.isEmpty(); }
    /// Whether more than one node had this identity at a time.
    bool isDoubled(const T &id) const { return !m_doubled.isEmpty() && m_doubled.contains(id); }

    /// Enters \a node under \a id, in place of what stood there.
    void insert(const T &id, const std::shared_ptr<Node> &node)
    {
        const std::shared_ptr<Node> older = this->node(id);
        if (older && older != node)
            m_doubled.insert(id, true);
        remove(id, node.get());
        if (m_byId.size() + m_displaced.size() >= m_sweepAt)
            sweep();
        m_byId.insert(id, Entry(node));
        node->m_self = node;
        node->m_addresses = m_byAddress;
        m_byAddress->insert(node.get());
    }

    /// Removes the entry of \a id, because \a gone leaves the tree. That another node, a newer one
    /// of the same identity, may stand there makes no difference: it can't be found from then on.
    void remove(const T &id, const Node *gone)
    {
        const auto found = m_byId.find(id);
        if (found == m_byId.end())
            return;
        if (!found->expired()) {
            m_byAddress->remove(found->address);
            if (found->address != gone)
                m_displaced.insert(found->address, *found);
        }
        m_byId.erase(found);
    }

private:
    /// Forgets the dead, whose memory a weak pointer keeps; seldom enough to cost nothing.
    void sweep()
    {
        for (auto at = m_byId.begin(); at != m_byId.end();)
            at = at->expired() ? m_byId.erase(at) : std::next(at);
        for (auto at = m_displaced.begin(); at != m_displaced.end();)
            at = at->expired() ? m_displaced.erase(at) : std::next(at);
        m_sweepAt = qMax(kFirstSweep, 2 * (m_byId.size() + m_displaced.size()));
    }

    static constexpr int kFirstSweep = 256;
    Map m_byId;
    std::shared_ptr<AddressSet> m_byAddress =
        std::make_shared<AddressSet>(); // nodes may outlive us
    QHash<const void *, Entry> m_displaced;
    QMap<T, bool> m_doubled;
    int m_sweepAt = kFirstSweep;
};

} // namespace vellum
