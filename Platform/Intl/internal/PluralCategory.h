// Intl/internal/PluralCategory.h
// The six plural categories of CLDR. The language determines the category of a number.
// Text: ASCII. Threads: any; constant data.
#pragma once

#include <array>
#include <cstddef>
#include <cstdint>
#include <optional>
#include <string_view>

namespace Intl {

enum class PluralCategory : std::uint8_t { zero, one, two, few, many, other };

// The names of the categories in CLDR, in the order of the enumeration.
inline constexpr std::array<std::string_view, 6> pluralCategoryNames = {"zero", "one", "two", "few", "many", "other"};
inline constexpr std::size_t pluralCategoryCount = pluralCategoryNames.size();
static_assert(static_cast<std::size_t>(PluralCategory::other) + 1 == pluralCategoryCount);

constexpr std::size_t indexOf(PluralCategory category) noexcept {
    return static_cast<std::size_t>(category);
}

// The category of that name (exact), or no value.
constexpr std::optional<PluralCategory> pluralCategoryNamed(std::string_view name) noexcept {
    for (std::size_t i = 0; i < pluralCategoryCount; ++i)
        if (pluralCategoryNames[i] == name)
            return static_cast<PluralCategory>(i);
    return std::nullopt;
}

} // namespace Intl
