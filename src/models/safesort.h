#pragma once

#include "vellum_export.h"

#include <QList>

#include <functional>
#include <memory>
#include <vector>

namespace vellum {

struct SortEntry
{
    const void *value;
    int place;
};

/// Sorts by \a less, stably. Unlike the sorts of the standard library it stays inside \a entries
/// and ends whatever \a less answers: the orders come from clients, and one that contradicts itself
/// must not corrupt the heap.
VELLUM_EXPORT void sortEntries(std::vector<SortEntry> &entries,
                               const std::function<bool(const void *, const void *)> &less);

/// The places of \a list in the order of \a less.
template <typename E, typename Less>
std::vector<int> sortedOrder(const QList<E> &list, const Less &less)
{
    std::vector<SortEntry> entries;
    entries.reserve(size_t(list.size()));
    for (int i = 0; i < list.size(); ++i)
        entries.push_back({std::addressof(list.at(i)), i});
    sortEntries(entries, [&less](const void *left, const void *right) {
        return bool(less(*static_cast<const E *>(left), *static_cast<const E *>(right)));
    });
    std::vector<int> order;
    order.reserve(entries.size());
    for (const SortEntry &entry : entries)
        order.push_back(entry.place);
    return order;
}

/// Puts at each place of \a list what stood at the place that \a order names there, a permutation.
/// QList's nodes change places, so a large record is not copied. An order that changes nothing
/// doesn't detach the list.
template <typename E>
void applyOrder(QList<E> &list, std::vector<int> order)
{
    for (int start = 0; start < list.size(); ++start) {
        int at = start;
        while (order[size_t(at)] != start) {
            const int from = order[size_t(at)];
            list.swapItemsAt(at, from);
            order[size_t(at)] = at;
            at = from;
        }
        order[size_t(at)] = at;
    }
}

} // namespace vellum
