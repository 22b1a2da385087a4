#include "Intl/internal/Precomputed.h"

#include <algorithm>
#include <array>
#include <cstdint>
#include <iterator>
#include <type_traits>

namespace Intl {

namespace {

// Offsets instead of pointers need no relocation when the library is loaded.
struct Known {
    std::uint16_t name;                    // offset in `names`, NUL-terminated
    std::uint16_t decimal, percent, years; // offsets in `texts`
};

#include "Precomputed.inc" // `names`, `texts`, and `known` in the order of the names

// Finds a locale by its identifier in ICU's form or BCP 47; null if it is not in the table.
const Known* find(std::string_view locale) noexcept {
    std::array<char, 32> buffer; // longer than any name in `names`
    if (locale.size() > buffer.size())
        return nullptr;
    const auto end = std::ranges::replace_copy(locale, buffer.begin(), '-', '_').out;
    const std::string_view name(buffer.begin(), end);
    const auto nameOf = [](const Known& one) { return std::string_view(names + one.name); };
    const auto* const found = std::ranges::lower_bound(known, name, {}, nameOf);
    return found != std::end(known) && nameOf(*found) == name ? found : nullptr;
}

// Reads the fields as forEachField() says that they are stored.
template <class Value> Value readAt(std::size_t offset) {
    Value value;
    const char* at = texts + offset;
    detail::forEachField(value, [&at](auto& part) {
        if constexpr (std::is_same_v<decltype(part), unsigned&>)
            part = static_cast<unsigned>(*at++ - '0');
        else
            at += part.assign(at).size() + 1;
    });
    return value;
}

} // namespace

std::optional<NumberPattern> knownNumberPattern(std::string_view locale, NumberStyle style) {
    const Known* const found = find(locale);
    if (found == nullptr)
        return std::nullopt;
    return readAt<NumberPattern>(style == NumberStyle::percent ? found->percent : found->decimal);
}

std::optional<YearForms> knownYearForms(std::string_view locale) {
    const Known* const found = find(locale);
    return found != nullptr ? std::optional(readAt<YearForms>(found->years)) : std::nullopt;
}

} // namespace Intl
