#pragma once

#include <QChar>

#include <algorithm>
#include <iterator>
#include <utility>

namespace vellum {

/// Whether the width of a text that ends in \a c can be taken to grow with each character: no
/// combining or joining, no right-to-left order, no tab, no surrogate. The ranges that texts of a
/// client are mostly made of are enough; what is left out is only slower.
inline bool growsSteadily(QChar c)
{
    static constexpr std::pair<char16_t, char16_t> ranges[] = {
        {0x0020, 0x007e}, {0x00a0, 0x00ac}, {0x00ae, 0x02ff}, // Latin, without the soft hyphen
        {0x0391, 0x03a1}, {0x03a3, 0x03ff}, {0x0400, 0x0482}, {0x048a, 0x052f}, // Greek, Cyrillic
        {0x2012, 0x2027}, {0x2030, 0x203a}, {0x20a0, 0x20bf}, // punctuation, currencies
        {0x3000, 0x3029}, {0x3041, 0x3096}, {0x30a0, 0x30fe}, // CJK punctuation, kana
        {0x3400, 0x4dbf}, {0x4e00, 0x9fff}, {0xff01, 0xff60}, // ideographs, full-width forms
    };
    const char16_t unit = c.unicode();
    return std::any_of(std::begin(ranges), std::end(ranges), [unit](const auto &range) {
        return range.first <= unit && unit <= range.second;
    });
}

} // namespace vellum
