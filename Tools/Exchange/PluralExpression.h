// Exchange/PluralExpression.h
// Evaluates the plural rules of PO files: C expressions in the number `n`.
// Text: ASCII. Threads: any; no state.
#pragma once

#include "Intl/internal/PluralCategory.h"
#include <cstddef>
#include <cstdint>
#include <optional>
#include <string_view>
#include <vector>

namespace Exchange {

// The value for `n`; no value for an invalid expression or a division by zero, even in an operand that C would not
// evaluate. Supported are integers, n, ! * / % + - < <= > >= == != && || and, nested less than maxExpressionDepth deep,
// ?: and parentheses.
[[nodiscard]] std::optional<std::uint64_t> evaluated(std::string_view expression, std::uint64_t n);
inline constexpr int maxExpressionDepth = 64;

// The plural category of each of `count` forms, where the expression maps integers to forms. Tries the integers from 0
// to 200, and some larger ones for the remaining forms. No value if for integers up to 200 the expression is invalid,
// gives a form that is not below `count`, or gives integers of different categories the same form. A form that none of
// the tried integers selects has no category.
[[nodiscard]] std::optional<std::vector<std::optional<Intl::PluralCategory>>>
categoriesOfForms(std::string_view expression, std::size_t count, std::string_view language);

} // namespace Exchange
