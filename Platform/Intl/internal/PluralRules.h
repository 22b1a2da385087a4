// Intl/internal/PluralRules.h
// Selects the plural category of a number by CLDR's cardinal rules. The rules are generated from ICU's data at build
// time, so that plurals do not need ICU.
// Text: ASCII. Threads: any; constant data.
#pragma once

#include "Intl/internal/PluralCategory.h"
#include <cstdint>
#include <string_view>

namespace Intl {

// The operands of CLDR's rules except n, which follows from i, f and v, and c and e, which are 0 because numbers are
// never printed in compact notation ("1.2M"). They describe the number as it is printed, so 1 and 1.0 differ. If i, f
// or t has more than 18 digits, its value is a 1 and the last 18 of them, which suffices for all rules.
struct PluralOperands {
    std::uint64_t i = 0; // whole part
    std::uint64_t v = 0; // number of digits after the point
    std::uint64_t w = 0; // the same without zeros at the end
    std::uint64_t f = 0; // digits after the point, as a number
    std::uint64_t t = 0; // the same without zeros at the end

    friend bool operator==(const PluralOperands&, const PluralOperands&) = default;
};

// The operands of a number printed in ASCII without its sign: "12.50"; "1.25e+01", which has those of "12.5". Whatever
// follows such a number is ignored; a text that does not begin with a number, such as "nan", gives zeros.
[[nodiscard]] PluralOperands pluralOperands(std::string_view decimal) noexcept;

// The rules of one language, found once for many numbers.
class PluralRules {
public:
    // `language` is a tag such as "pt-PT" or "sr_Latn". An unknown language has only the category `other`.
    explicit PluralRules(std::string_view language) noexcept;
    [[nodiscard]] PluralCategory category(const PluralOperands& number) const noexcept;

private:
    unsigned ruleSet_;
};

// The category of the number in the language of a tag such as "pt-PT" or "sr_Latn"; `other` for an unknown language.
[[nodiscard]] PluralCategory pluralCategory(std::string_view language, const PluralOperands& number) noexcept;

// The categories that a language has for all numbers, and those that it has for integers; each is a set of bits
// `1 << indexOf(category)`. An unknown language has only `other`.
struct PluralCategories {
    std::uint8_t all;
    std::uint8_t ofIntegers;
};
[[nodiscard]] PluralCategories pluralCategories(std::string_view language) noexcept;

// The rule for integers as a C expression in `n`: "n == 1 ? 0 : 1". Its value is the index of the category among those
// in `ofIntegers`. "0" for an unknown language.
[[nodiscard]] std::string_view integerPluralExpression(std::string_view language) noexcept;

} // namespace Intl
