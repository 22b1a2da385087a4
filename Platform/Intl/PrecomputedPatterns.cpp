#include "Intl/internal/PrecomputedPatterns.h"

#include <algorithm>
#include <array>
#include <cstdint>
#include <type_traits>

namespace Intl {

namespace {

// Offsets instead of pointers: nothing has to be relocated when the library is loaded.
struct Known {
    std::uint16_t name;                    // among `names`, ends at a NUL
    std::array<std::uint16_t, 2> patterns; // by style, among `patterns`
};

#include "NumberPatterns.inc" // `names`, `patterns`, and `known` in the order of the names

} // namespace

std::optional<NumberPattern> knownNumberPattern(std::string_view locale, NumberStyle style) {
    const auto nameOf = [](const Known& one) { return std::string_view(names + one.name); };
    const auto found = std::ranges::lower_bound(known, locale, {}, nameOf);
    if (found == std::end(known) || nameOf(*found) != locale)
        return std::nullopt;
    NumberPattern pattern;
    const char* at = patterns + found->patterns[static_cast<std::size_t>(style)];
    detail::forEachPart(pattern, [&at](auto& part) {
        if constexpr (std::is_same_v<decltype(part), unsigned&>)
            part = static_cast<unsigned>(*at++ - '0');
        else
            at += part.assign(at).size() + 1;
    });
    return pattern;
}

} // namespace Intl
