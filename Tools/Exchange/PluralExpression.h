// Exchange/PluralExpression.h
// The plural rules of PO files: expressions of C over the number `n`.
// Text: ASCII. Threads: any; no state.
#pragma once

#include "Intl/internal/PluralCategory.h"
#include <cstddef>
#include <cstdint>
#include <optional>
#include <string_view>
#include <vector>

namespace Exchange {

// The value for `n`; no value where the text is no expression or divides by zero. Integers, n, ! * / % + - < <= > >= ==
// != && || ?: and brackets, nested at most maxExpressionDepth deep.
[[nodiscard]] std::optional<std::uint64_t> evaluated(std::string_view expression, std::uint64_t n);
inline constexpr int maxExpressionDepth = 64;

// The category that each of `count` forms has in the language, where the expression chooses the form of a number; no
// value if it tells numbers apart otherwise than the language does. A form that no number has has no category.
[[nodiscard]] std::optional<std::vector<std::optional<Intl::PluralCategory>>>
categoriesOfForms(std::string_view expression, std::size_t count, std::string_view language);

} // namespace Exchange
