#pragma once

#include "vellum_export.h"

#include <QHash>
#include <QList>

#include <type_traits>
#include <utility>
#include <vector>

namespace vellum {

/// Places 0, 1, 2, ... of a list, chained by the hash of what stands there.
class VELLUM_EXPORT HashChains
{
public:
    /// With room for \a capacity places; more make the chains longer.
    explicit HashChains(int capacity);

    /// Adds the next place.
    void append(uint hash);

    /// The first place with \a hash for which \a matches(place) holds, -1 without one.
    template <typename Matches>
    int find(uint hash, const Matches &matches) const
    {
        for (int at = m_ends[slotOf(hash)].first; at >= 0; at = m_links[size_t(at)].next) {
            if (m_links[size_t(at)].hash == hash && matches(at))
                return at;
        }
        return -1;
    }

private:
    struct Ends
    {
        int first = -1;
        int last = -1;
    };
    struct Link
    {
        uint hash;
        int next;
    };

    size_t slotOf(uint hash) const { return (hash * 2654435769U) >> m_shift; }

    uint m_shift;
    std::vector<Ends> m_ends;
    std::vector<Link> m_links;
};

/// Converts to T and, if so asked, to T's bases, and to nothing that T has a conversion to: a hash
/// of what T converts to need not agree with T's equality.
template <typename T, bool WithBases>
struct HashArgument
{
    template <
        typename U,
        std::enable_if_t<std::is_same_v<U, T> || (WithBases && std::is_base_of_v<U, T>), int> = 0>
    operator const U &() const; // NOLINT: implicit, as the arguments of qHash() need it
};

template <typename T, bool WithBases, typename = void>
struct HasHashFor : std::false_type
{
};

template <typename T, bool WithBases>
struct HasHashFor<T, WithBases, std::void_t<decltype(qHash(HashArgument<T, WithBases>()))>>
    : std::true_type
{
};

template <typename T, typename = void>
struct HasOwnEquality : std::false_type
{
};

template <typename T>
struct HasOwnEquality<T,
                      std::void_t<decltype(std::declval<const T &>() == HashArgument<T, false>())>>
    : std::true_type
{
};

/// Whether qHash() takes a T, or a base of it whose equality is T's, too: rows that differ for the
/// base may be equal for a T that compares by itself.
template <typename T>
constexpr bool hasRowHash = std::is_arithmetic_v<T> || HasHashFor<T, false>::value
    || (HasHashFor<T, true>::value && !HasOwnEquality<T>::value);

/// Finds rows of a list by operator==: by their hash if T has one, else by a scan.
template <typename T>
class RowIndex
{
public:
    /// Looks at \a rows, which stays with the caller; \a more rows are expected to be appended.
    RowIndex(const QList<T> &rows, int more)
        : m_rows(rows)
        , m_chains(hasRowHash<T> ? rows.size() + more : 0)
    {
        for (const T &row : rows)
            appended(hashOf(row));
    }

    static uint hashOf(const T &row)
    {
        if constexpr (hasRowHash<T>)
            return qHash(row);
        else
            return 0;
    }

    /// The first place of a row equal to \a row, whose hash is given, too; -1 without one.
    int find(const T &row, uint hash) const
    {
        if constexpr (hasRowHash<T>)
            return m_chains.find(hash, [&](int at) { return m_rows.at(at) == row; });
        else
            return m_rows.indexOf(row);
    }

    /// To be called for each row appended to the list.
    void appended(uint hash)
    {
        if constexpr (hasRowHash<T>)
            m_chains.append(hash);
    }

private:
    const QList<T> &m_rows;
    HashChains m_chains;
};

} // namespace vellum
