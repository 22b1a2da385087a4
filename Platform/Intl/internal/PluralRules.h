// Intl/internal/PluralRules.h
// Which plural form goes with a number in a language, by CLDR's cardinal rules. ICU's data are written down when the
// library is built, so that no plural needs ICU.
// Text: ASCII. Threads: any; constant data.
#pragma once

#include "Intl/internal/PluralCategory.h"
#include <cstdint>
#include <string_view>

namespace Intl {

// A number as the rules look at it: they ask for its digits as printed, so 1 and 1.0 differ. No rule looks at more than
// the last digits of each part.
struct PluralOperands {
    std::uint64_t i = 0; // whole part
    std::uint64_t v = 0; // number of digits after the point
    std::uint64_t w = 0; // the same without zeros at the end
    std::uint64_t f = 0; // digits after the point, as a number
    std::uint64_t t = 0; // the same without zeros at the end

    friend bool operator==(const PluralOperands&, const PluralOperands&) = default;
};

// Of a number as printed in ASCII, without its sign: "12.50", "1.25e+01". Other characters end it.
[[nodiscard]] PluralOperands pluralOperands(std::string_view decimal) noexcept;

// The category of the number in the language of a tag such as "pt-PT" or "sr_Latn"; `other` where the language is
// unknown.
[[nodiscard]] PluralCategory pluralCategory(std::string_view language, const PluralOperands& number) noexcept;

// The categories of a language, a bit for each by its index: of all numbers, and of whole numbers.
struct PluralCategories {
    std::uint8_t all;
    std::uint8_t ofIntegers;
};
[[nodiscard]] PluralCategories pluralCategories(std::string_view language) noexcept;

// The rule for whole numbers as an expression of C over `n`, whose value is the number of the category among
// `ofIntegers`, from 0 on: "n == 1 ? 0 : 1". "0" where the language is unknown.
[[nodiscard]] std::string_view integerPluralExpression(std::string_view language) noexcept;

} // namespace Intl
