// Foundation/internal/NumberText.h
// Numbers as a locale writes them; internal.
// Text: UTF-8. Threads: any; reading a pattern that is known takes no lock. Without the language data every locale
// writes plain ASCII.
#pragma once

#include "Foundation/NSNumber.h"
#include "Foundation/internal/LocaleCache.h"
#include "Intl/internal/Intl.h"
#include <string>
#include <string_view>

namespace Foundation::detail {

// How the locale of that identifier writes numbers.
[[nodiscard]] Kept<Intl::NumberPattern> numberPattern(std::string_view locale, Intl::NumberStyle style);

// Appends digits, given in ASCII, in the locale's digits.
void appendDigits(std::string& out, const Intl::NumberPattern& pattern, std::string_view digits);

// Appends a whole number, given by its digits in ASCII, in the locale's digits and grouping.
void appendWhole(std::string& out, const Intl::NumberPattern& pattern, std::string_view digits);

// Appends a number with its affixes; `positivePrefix` stands before what is not negative. Floating values are rounded
// at the pattern's last place, halves to even, by their shortest decimal digits.
void appendNumber(std::string& out, const Intl::NumberPattern& pattern, std::string_view positivePrefix,
                  NSNumber number);

} // namespace Foundation::detail
