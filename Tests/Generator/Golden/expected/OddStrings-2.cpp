// Generated from the resources of the module Odd; do not edit.
#include "OddStrings/Internal/Lookup.h"
#include "OddStrings/Localizable.h"
#include "OddStrings/OddNames.h"
#include "Runtime/OnceSlot.h"

// The keys, and the accessors that look them up.
// clang-format off

namespace Odd::OddStrings::detail {

namespace {

constexpr char characters[] =
    "Localizable"
    "Odd names"
    "commented"
    "ends in a backslash"
    "closes */ a comment"
    "asks ?\?/ twice ?\?="
    "hides \342\200\256"
    "key \"quoted\" \\ é 1"
    "long"
    "percent"
    "text"
    "two"
    "swapped"
    "same"
    "width"
    "floating"
    "six words";
constexpr Table tables[] = {
    {0, 11, 0x5cec8775a743a99d}, {11, 9, 0x2660c3b44ecb557d}};
constexpr Place places[] = {
    {0, 20, 0x74a53778c2623edc}, {0, 29, 0xc6b9532b9e1b7288}, {0, 48, 0xa708afc82ab1f2da}, {0, 67, 0xefbe8d9d6040e4e5},
    {0, 85, 0x8d4080a031438e80}, {0, 94, 0x9b149da67606d67e}, {0, 113, 0x40badd106ebb7ba5},
    {0, 117, 0x2e4c9c518b5a1f0e}, {1, 124, 0x4c44ab7c1907e54d}, {0, 128, 0xf0650ba30d45eed8},
    {0, 131, 0xa3187ac9724b560c}, {0, 138, 0x3110611e5aff0186}, {0, 142, 0xe5565e6f157eba16},
    {0, 147, 0x7e847a625d48181b}, {0, 155, 0xd61bc9542b1856f5}, {0, 164, 0}};

inline ::Foundation::LocalizedKey keyAt(std::size_t entry) noexcept {
    const Place& place = places[entry];
    const Table& table = tables[place.table];
    const std::string_view name(characters + table.name, table.size);
    const std::string_view key(characters + place.key, places[entry + 1].key - place.key);
    return {name, key, table.hash, place.hash};
}

using Slot = ::Runtime::OnceSlot<std::string>;
constinit Slot slots[9];

// When memory or descriptors run out, the text is empty, and a later call tries again.
[[gnu::noinline, gnu::cold]] const std::string& made(const Slot& slot) noexcept {
    try {
        const auto entry = static_cast<std::size_t>(&slot - slots);
        return slots[entry].get([entry] { return tr(keyAt(entry), {}); });
    } catch (...) {
        return noText();
    }
}

[[gnu::noinline]] std::string formatted(std::size_t entry,
                                        std::initializer_list<::Foundation::FormatArgument> arguments) noexcept {
    try {
        return tr(keyAt(entry), arguments);
    } catch (...) { // no memory or descriptors
        return {};
    }
}

// The optimizations that are switched off take almost half of GCC's time and do not change a plain accessor. The
// alignment keeps an accessor in one cache line.
#if defined(__OPTIMIZE__) && !defined(__clang__)
#pragma GCC optimize("O1", "optimize-sibling-calls", "align-functions=32", "no-tree-pta", "no-tree-sra", "no-tree-dce", \
                     "no-tree-dse", "no-tree-dominator-opts", "no-tree-fre", "no-tree-ccp", "no-tree-bit-ccp", "no-if-conversion", \
                     "no-if-conversion2", "no-shrink-wrap", "no-ssa-phiopt", "no-dse", "no-dce", "no-forward-propagate", \
                     "no-split-wide-types", "no-compare-elim", "no-combine-stack-adjustments", "no-cprop-registers")
#endif

inline const std::string& text(const Slot& slot) noexcept {
    return slot.isMade() ? slot.value() : made(slot);
}

} // namespace

} // namespace Odd::OddStrings::detail

namespace Odd::OddStrings::Localizable {

const std::string& commented() { return detail::text(detail::slots[0]); }
const std::string& endsInABackslash() { return detail::text(detail::slots[1]); }
const std::string& closesAComment() { return detail::text(detail::slots[2]); }
const std::string& asksTwice() { return detail::text(detail::slots[3]); }
const std::string& hides() { return detail::text(detail::slots[4]); }
const std::string& keyQuotedÉ1() { return detail::text(detail::slots[5]); }
const std::string& long_() { return detail::text(detail::slots[6]); }
const std::string& percent() { return detail::text(detail::slots[7]); }
std::string two(const ::Foundation::Describable& first, const ::Foundation::Describable& second) {
    return detail::formatted(9, {first.text(), second.text()});
}
std::string swapped(std::int64_t first, const ::Foundation::Describable& second) {
    return detail::formatted(10, {first, second.text()});
}
std::string same(const ::Foundation::Describable& value) {
    return detail::formatted(11, {value.text()});
}
std::string width(std::int64_t first, std::int64_t second) {
    return detail::formatted(12, {first, second});
}
std::string floating(double value) {
    return detail::formatted(13, {value});
}
std::string sixWords(const ::Foundation::Describable& first, const ::Foundation::Describable& second,
                     const ::Foundation::Describable& third, const ::Foundation::Describable& fourth,
                     const ::Foundation::Describable& fifth, const ::Foundation::Describable& argument6) {
    return detail::formatted(14, {first.text(), second.text(), third.text(), fourth.text(), fifth.text(),
                                  argument6.text()});
}

} // namespace Odd::OddStrings::Localizable

namespace Odd::OddStrings::OddNames {

const std::string& text() { return detail::text(detail::slots[8]); }

} // namespace Odd::OddStrings::OddNames
