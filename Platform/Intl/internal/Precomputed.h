// Intl/internal/Precomputed.h
// The number patterns and year forms of all locales that ICU lists, generated at build time. Most processes then need
// neither the plug-in nor ICU's data, whose loading takes a millisecond and megabytes.
// Text: UTF-8. Threads: any; constant data.
#pragma once

#include "Intl/internal/NumberPattern.h"
#include "Intl/internal/YearForms.h"
#include <optional>
#include <string_view>
#include <type_traits>

namespace Intl {

// The data of the locale with that identifier in ICU's form ("de_AT") or BCP 47 ("de-AT"), or no value.
[[nodiscard]] std::optional<NumberPattern> knownNumberPattern(std::string_view locale, NumberStyle style);
[[nodiscard]] std::optional<YearForms> knownYearForms(std::string_view locale);

namespace detail {

// Visits all fields in the order in which lumora-precompute stores them: strings with a NUL, numbers as one digit each.
template <class Visit, class Forms>
requires std::is_same_v<std::remove_const_t<Forms>, YearForms>
void forEachField(Forms& years, Visit&& visit) {
    for (auto& form : years.forms)
        visit(form);
}
template <class Visit, class Pattern>
requires std::is_same_v<std::remove_const_t<Pattern>, NumberPattern>
void forEachField(Pattern& pattern, Visit&& visit) {
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
