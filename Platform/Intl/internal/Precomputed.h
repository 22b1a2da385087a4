// Intl/internal/Precomputed.h
// The number patterns and year forms of the locales that ICU lists, written down when the library is built. Most
// numbers and years then need neither the plug-in nor ICU's data, which cost a millisecond and megabytes of a process's
// start. Text: UTF-8. Threads: any; constant data.
#pragma once

#include "Intl/internal/NumberPattern.h"
#include "Intl/internal/YearForms.h"
#include <optional>
#include <string_view>
#include <type_traits>

namespace Intl {

// Of the locale with that identifier in ICU's form ("de_AT") or as BCP 47 ("de-AT"), or no value.
[[nodiscard]] std::optional<NumberPattern> knownNumberPattern(std::string_view locale, NumberStyle style);
[[nodiscard]] std::optional<YearForms> knownYearForms(std::string_view locale);

namespace detail {

// Visits all parts in the order in which they are written down: a text ends with a NUL, a number is one digit.
template <class Visit, class Forms>
requires std::is_same_v<std::remove_const_t<Forms>, YearForms>
void forEachPart(Forms& years, Visit&& visit) {
    for (auto& form : years.forms)
        visit(form);
}
template <class Visit, class Pattern>
requires std::is_same_v<std::remove_const_t<Pattern>, NumberPattern>
void forEachPart(Pattern& pattern, Visit&& visit) {
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
