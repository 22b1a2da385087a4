// Made from the resources of the module Odd; do not edit.
#include "OddStrings/Internal/Catalog.h"
#include "OddStrings/Localizable.h"
#include "OddStrings/OddNames.h"
#include "Runtime/Attempt.h"
#include "Runtime/OnceSlot.h"

// Tables, and a line for each accessor.
// clang-format off

namespace Odd::OddStrings::detail {

namespace {

constexpr char characters[] =
    "Localizable\000"
    "Odd names\000"
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
constexpr Place places[] = {
    {0, 22}, {0, 31}, {0, 50}, {0, 69}, {0, 87}, {0, 96}, {0, 115}, {0, 119}, {12, 126}, {0, 130}, {0, 133}, {0, 140},
    {0, 144}, {0, 149}, {0, 157}, {0, 166}};

constinit ::Runtime::OnceSlot<std::string> slots[9];

// Without memory or descriptors this read gives no text, and a later one tries again.
[[gnu::noinline, gnu::cold]] const std::string& made(std::size_t entry) noexcept {
    try {
        return slots[entry].get([entry] { return textAt(characters, places + entry, {}); });
    } catch (...) {
        return noText();
    }
}

inline const std::string& text(std::size_t entry) noexcept {
    return slots[entry].isMade() ? slots[entry].value() : made(entry);
}

[[gnu::noinline]] std::string formatted(std::size_t entry,
                                        std::initializer_list<::Foundation::FormatArgument> arguments) noexcept {
    return ::Runtime::attempt([&] { return textAt(characters, places + entry, arguments); });
}

} // namespace

} // namespace Odd::OddStrings::detail

namespace Odd::OddStrings::Localizable {

const std::string& commented() { return detail::text(0); }
const std::string& endsInABackslash() { return detail::text(1); }
const std::string& closesAComment() { return detail::text(2); }
const std::string& asksTwice() { return detail::text(3); }
const std::string& hides() { return detail::text(4); }
const std::string& keyQuotedÉ1() { return detail::text(5); }
const std::string& long_() { return detail::text(6); }
const std::string& percent() { return detail::text(7); }
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

const std::string& text() { return detail::text(8); }

} // namespace Odd::OddStrings::OddNames
