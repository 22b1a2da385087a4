// Foundation/internal/NumberText.h
// Formats numbers for a locale; internal.
// Text: UTF-8. Threads: any; lock-free for cached patterns. A locale without language data uses plain ASCII.
#pragma once

#include "Foundation/NSNumber.h"
#include "Foundation/internal/LocaleCache.h"
#include "Intl/internal/Intl.h"
#include <string>
#include <string_view>

namespace Foundation::detail {

// The number pattern of a locale, cached.
[[nodiscard]] Kept<Intl::NumberPattern> numberPattern(std::string_view locale, Intl::NumberStyle style);

// Appends ASCII digits as the locale's digits.
void appendDigits(std::string& out, const Intl::NumberPattern& pattern, std::string_view digits);

// Appends an integer, given as ASCII digits, with the locale's digits and grouping.
void appendWhole(std::string& out, const Intl::NumberPattern& pattern, std::string_view digits);

// Appends a number with the pattern's prefix and suffix; nonnegative numbers have `positivePrefix` instead of the
// pattern's. The number is multiplied by the pattern's power of ten; a floating-point value is then rounded to the
// pattern's fraction digits, halves to even, based on its shortest decimal digits.
void appendNumber(std::string& out, const Intl::NumberPattern& pattern, std::string_view positivePrefix,
                  const NSNumber& number);

} // namespace Foundation::detail
