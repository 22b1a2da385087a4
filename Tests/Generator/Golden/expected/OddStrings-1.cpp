// Made from the resources of the module Odd; do not edit.
#include "OddStrings/Internal/Catalog.h"
#include "OddStrings/Localizable.h"
#include "Runtime/Attempt.h"
#include "Runtime/OnceSlot.h"

// Tables, and a line for each accessor.
// clang-format off

namespace Odd::OddStrings::detail {

namespace {

constexpr char characters[] =
    "Localizable\000"
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
constexpr Place places[] = {
    {0, 12}, {0, 20}, {0, 23}, {0, 26}, {0, 40}, {0, 51}, {0, 57}, {0, 62}, {0, 68}, {0, 83}, {0, 108}, {0, 130},
    {0, 141}, {0, 146}, {0, 183}, {0, 217}};

constinit ::Runtime::OnceSlot<std::string> slots[13];

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

const std::string& continue_() { return detail::text(0); }
const std::string& na() { return detail::text(1); }
const std::string& msg() { return detail::text(2); }
const std::string& compressing() { return detail::text(3); }
std::string youCanTSetAPriceThatExceeds(const ::Foundation::Describable& value) {
    return detail::formatted(13, {value.text()});
}
const std::string& invoiceNo() { return detail::text(4); }
const std::string& 日本() { return detail::text(5); }
const std::string& plain() { return detail::text(6); }
const std::string& detail() { return detail::text(7); }

} // namespace Odd::OddStrings::Localizable

namespace Odd::OddStrings::Localizable::Сhatlist {

const std::string& photo() { return detail::text(8); }

} // namespace Odd::OddStrings::Localizable::Сhatlist

namespace Odd::OddStrings::Localizable::_10ExerciseStraight {

const std::string& delete_() { return detail::text(9); }

} // namespace Odd::OddStrings::Localizable::_10ExerciseStraight

namespace Odd::OddStrings::Localizable::Foundation {

const std::string& describable() { return detail::text(10); }

} // namespace Odd::OddStrings::Localizable::Foundation

namespace Odd::OddStrings::Localizable::Runtime {

const std::string& std() { return detail::text(11); }

} // namespace Odd::OddStrings::Localizable::Runtime

namespace Odd::OddStrings::Localizable::Widget::Fitness::Inactive {

std::string afterDays(std::int64_t value) {
    return detail::formatted(14, {value});
}

} // namespace Odd::OddStrings::Localizable::Widget::Fitness::Inactive

namespace Odd::OddStrings::Localizable {

const std::string& errno_() { return detail::text(12); }

} // namespace Odd::OddStrings::Localizable
