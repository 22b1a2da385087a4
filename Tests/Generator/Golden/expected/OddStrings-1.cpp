// Generated from the resources of the module Odd; do not edit.
#include "OddStrings/Internal/Lookup.h"
#include "OddStrings/Localizable.h"
#include "Runtime/OnceSlot.h"

// The keys, and the accessors that look them up.
// clang-format off

namespace Odd::OddStrings::detail {

namespace {

constexpr char characters[] =
    "Localizable"
    "continue"
    "N/A"
    "MSG"
    "Compressing..."
    "Invoice №"
    "日本"
    "plain"
    "detail"
    "Сhatlist.Photo"
    "10ExerciseStraight.Delete"
    "Foundation.Describable"
    "Runtime.std"
    "errno"
    "You can't set a price that exceeds %@"
    "widget.fitness.inactive.after_days";
constexpr Table tables[] = {
    {0, 11, 0x5cec8775a743a99d}};
constexpr Place places[] = {
    {0, 11, 0xd7b8624774bba82a}, {0, 19, 0xbad792ba44d3ffb8}, {0, 22, 0x1832cceedba6f6e5}, {0, 25, 0x11cd733b05d202e3},
    {0, 39, 0x54fcf147d51932bd}, {0, 50, 0x10e634dabdf02f70}, {0, 56, 0x6890a5c99f444e91}, {0, 61, 0x897d37404a3086f9},
    {0, 67, 0x95e97eac24d61b79}, {0, 82, 0x49358c47eb14996f}, {0, 107, 0xb25a57b51063bfb7},
    {0, 129, 0x15260c232e7621c0}, {0, 140, 0xb055ecfa37907cc6}, {0, 145, 0x945aaf25c6b15e25},
    {0, 182, 0xceea310df6a2cca7}, {0, 216, 0}};

inline ::Foundation::LocalizedKey keyAt(std::size_t entry) noexcept {
    const Place& place = places[entry];
    const Table& table = tables[place.table];
    const std::string_view name(characters + table.name, table.size);
    const std::string_view key(characters + place.key, places[entry + 1].key - place.key);
    return {name, key, table.hash, place.hash};
}

using Slot = ::Runtime::OnceSlot<std::string>;
constinit Slot slots[13];

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

const std::string& continue_() { return detail::text(detail::slots[0]); }
const std::string& na() { return detail::text(detail::slots[1]); }
const std::string& msg() { return detail::text(detail::slots[2]); }
const std::string& compressing() { return detail::text(detail::slots[3]); }
std::string youCanTSetAPriceThatExceeds(const ::Foundation::Describable& value) {
    return detail::formatted(13, {value.text()});
}
const std::string& invoiceNo() { return detail::text(detail::slots[4]); }
const std::string& 日本() { return detail::text(detail::slots[5]); }
const std::string& plain() { return detail::text(detail::slots[6]); }
const std::string& detail() { return detail::text(detail::slots[7]); }

} // namespace Odd::OddStrings::Localizable

namespace Odd::OddStrings::Localizable::Сhatlist {

const std::string& photo() { return detail::text(detail::slots[8]); }

} // namespace Odd::OddStrings::Localizable::Сhatlist

namespace Odd::OddStrings::Localizable::_10ExerciseStraight {

const std::string& delete_() { return detail::text(detail::slots[9]); }

} // namespace Odd::OddStrings::Localizable::_10ExerciseStraight

namespace Odd::OddStrings::Localizable::Foundation {

const std::string& describable() { return detail::text(detail::slots[10]); }

} // namespace Odd::OddStrings::Localizable::Foundation

namespace Odd::OddStrings::Localizable::Runtime {

const std::string& std() { return detail::text(detail::slots[11]); }

} // namespace Odd::OddStrings::Localizable::Runtime

namespace Odd::OddStrings::Localizable::Widget::Fitness::Inactive {

std::string afterDays(std::int64_t value) {
    return detail::formatted(14, {value});
}

} // namespace Odd::OddStrings::Localizable::Widget::Fitness::Inactive

namespace Odd::OddStrings::Localizable {

const std::string& errno_() { return detail::text(detail::slots[12]); }

} // namespace Odd::OddStrings::Localizable
