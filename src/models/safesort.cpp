#include "models/safesort.h"

#include <algorithm>

namespace {

using Less = std::function<bool(const void *, const void *)>;

constexpr ptrdiff_t kShortRun = 8;

void insertionSort(vellum::SortEntry *first, vellum::SortEntry *last, const Less &less)
{
    for (vellum::SortEntry *next = first + 1; next < last; ++next) {
        const vellum::SortEntry entry = *next;
        vellum::SortEntry *hole = next;
        for (; hole > first && less(entry.value, (hole - 1)->value); --hole)
            *hole = *(hole - 1);
        *hole = entry;
    }
}

void mergeSort(vellum::SortEntry *first, vellum::SortEntry *last, vellum::SortEntry *buffer,
               const Less &less)
{
    if (last - first <= kShortRun) {
        insertionSort(first, last, less);
        return;
    }
    vellum::SortEntry *const middle = first + (last - first) / 2;
    mergeSort(first, middle, buffer, less);
    mergeSort(middle, last, buffer, less);
    if (!less(middle->value, (middle - 1)->value))
        return;
    vellum::SortEntry *left = buffer;
    vellum::SortEntry *const leftEnd = std::copy(first, middle, buffer);
    vellum::SortEntry *right = middle;
    vellum::SortEntry *out = first;
    while (left < leftEnd && right < last)
        *out++ = less(right->value, left->value) ? *right++ : *left++;
    std::copy(left, leftEnd, out);
}

} // namespace

void vellum::sortEntries(std::vector<SortEntry> &entries, const Less &less)
{
    if (entries.size() < 2)
        return;
    std::vector<SortEntry> buffer(entries.size() / 2);
    mergeSort(entries.data(), entries.data() + entries.size(), buffer.data(), less);
}
