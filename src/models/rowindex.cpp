#include "models/rowindex.h"

#include <algorithm>

namespace {

/// As many bits as number \a capacity slots, within reason.
uint bitsFor(int capacity)
{
    uint bits = 1;
    while (bits < 28 && (1 << bits) < capacity)
        ++bits;
    return bits;
}

} // namespace

vellum::HashChains::HashChains(int capacity)
    : m_shift(32 - bitsFor(capacity))
    , m_ends(size_t(1) << bitsFor(capacity))
{
    m_links.reserve(size_t(std::max(capacity, 0)));
}

void vellum::HashChains::append(uint hash)
{
    const int place = int(m_links.size());
    m_links.push_back({hash, -1});
    Ends &ends = m_ends[slotOf(hash)];
    if (ends.first < 0)
        ends.first = place;
    else
        m_links[size_t(ends.last)].next = place;
    ends.last = place;
}
