#include "models/addressset.h"

namespace {

constexpr size_t kFirstSize = 64;

} // namespace

vellum::AddressSet::AddressSet()
    : m_mask(kFirstSize - 1)
    , m_slots(kFirstSize)
{
}

void vellum::AddressSet::insert(const void *address)
{
    if (2 * (m_count + 1) > m_slots.size())
        grow();
    const void *&slot = m_slots[find(address)];
    if (!slot)
        ++m_count;
    slot = address;
}

void vellum::AddressSet::remove(const void *address)
{
    size_t hole = find(address);
    if (!m_slots[hole])
        return;
    --m_count;
    // What was pushed on by the one that goes moves back, so that no search stops at the hole.
    for (size_t at = (hole + 1) & m_mask; m_slots[at]; at = (at + 1) & m_mask) {
        const size_t wanted = home(m_slots[at]);
        if (((at - wanted) & m_mask) < ((at - hole) & m_mask))
            continue;
        m_slots[hole] = m_slots[at];
        hole = at;
    }
    m_slots[hole] = nullptr;
}

void vellum::AddressSet::grow()
{
    std::vector<const void *> before(2 * m_slots.size());
    before.swap(m_slots);
    m_mask = m_slots.size() - 1;
    for (const void *address : before) {
        if (address)
            m_slots[find(address)] = address;
    }
}
