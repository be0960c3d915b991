#include "models/addresstable.h"

#include <utility>

namespace {

constexpr size_t kFirstSize = 64;

} // namespace

vellum::AddressTable::AddressTable()
    : m_mask(kFirstSize - 1)
    , m_slots(kFirstSize)
{
}

void vellum::AddressTable::insert(const std::shared_ptr<void> &object)
{
    if (2 * (m_count + 1) > m_slots.size())
        grow();
    Slot &slot = m_slots[find(object.get())];
    if (!slot.address)
        ++m_count;
    slot.address = object.get();
    slot.object = object;
}

void vellum::AddressTable::remove(const void *address)
{
    size_t hole = find(address);
    if (!m_slots[hole].address)
        return;
    --m_count;
    // What was pushed on by the one that goes moves back, so that no search stops at the hole.
    for (size_t at = (hole + 1) & m_mask; m_slots[at].address; at = (at + 1) & m_mask) {
        const size_t wanted = home(m_slots[at].address);
        if (((at - wanted) & m_mask) < ((at - hole) & m_mask))
            continue;
        m_slots[hole] = std::move(m_slots[at]);
        hole = at;
    }
    m_slots[hole] = Slot();
}

void vellum::AddressTable::grow()
{
    std::vector<Slot> before(2 * m_slots.size());
    before.swap(m_slots);
    m_mask = m_slots.size() - 1;
    for (Slot &slot : before) {
        if (slot.address)
            m_slots[find(slot.address)] = std::move(slot);
    }
}
