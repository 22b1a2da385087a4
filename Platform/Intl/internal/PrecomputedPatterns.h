// Intl/internal/PrecomputedPatterns.h
// The number patterns of the locales that ICU lists, written down when the library is built: most numbers then need
// neither the plug-in nor ICU's data, which are a millisecond and megabytes of a process's start. Text: UTF-8.
// Threads: any; constant data.
#pragma once

#include "Intl/internal/NumberPattern.h"
#include <optional>
#include <string_view>
#include <type_traits>

namespace Intl {

// The pattern of the locale with exactly that identifier in ICU's form ("de_AT"), or no value.
[[nodiscard]] std::optional<NumberPattern> knownNumberPattern(std::string_view locale, NumberStyle style);

namespace detail {

// All parts of a pattern in the order in which they are written down: a text ends with a NUL, a number is one digit.
template <class Pattern, class Visit> void forEachPart(Pattern& pattern, Visit&& visit) {
    static_assert(std::is_same_v<std::remove_const_t<Pattern>, NumberPattern>);
    for (auto& digit : pattern.digits)
        visit(digit);
    for (auto* text : {&pattern.positivePrefix, &pattern.positiveSuffix, &pattern.negativePrefix,
                       &pattern.negativeSuffix, &pattern.plusSign, &pattern.minusSign, &pattern.decimalSeparator,
                       &pattern.groupingSeparator, &pattern.infinity, &pattern.notANumber})
        visit(*text);
    for (auto* number : {&pattern.primaryGrouping, &pattern.secondaryGrouping, &pattern.minimumGrouping,
                         &pattern.maximumFraction, &pattern.minimumFraction, &pattern.powerOfTen})
        visit(*number);
}

} // namespace detail

} // namespace Intl
