#pragma once

#include "vellum_export.h"

#include <cstddef>
#include <cstdint>
#include <vector>

namespace vellum {

/// Addresses of live objects, which take themselves out when they die. Tells such an address from
/// any other without looking into it, which a view asks several times for each row that it lays
/// out.
class VELLUM_EXPORT AddressSet
{
public:
    AddressSet();

    /// Takes any address but null.
    void insert(const void *address);
    void remove(const void *address);
    bool contains(const void *address) const { return m_slots[find(address)] && address; }

private:
    /// Objects of one page of memory stand side by side, so that a walk through them in the order
    /// in which they were made stays in the cache.
    size_t home(const void *address) const
    {
        const auto bits = reinterpret_cast<std::uintptr_t>(address);
        const std::uint64_t page = std::uint64_t(bits >> 12) * 0x9E3779B97F4A7C15U;
        return size_t(((page >> 32) & ~std::uint64_t(15)) + ((bits >> 8) & 15)) & m_mask;
    }

    /// The slot of \a address, or the empty one where it would go.
    size_t find(const void *address) const
    {
        size_t at = home(address);
        while (m_slots[at] && m_slots[at] != address)
            at = (at + 1) & m_mask;
        return at;
    }

    void grow();

    size_t m_mask;
    size_t m_count = 0;
    std::vector<const void *> m_slots; // a power of two, at most half of them taken
};

} // namespace vellum
