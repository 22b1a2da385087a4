// Foundation/internal/FormattedNumber.h
// Formats a number for a printf placeholder, before padding to its width; internal.
// Text: UTF-8. Threads: any; no state. In the locale "en_US_POSIX" the results equal those of the C library in its
// locale "C", whatever setlocale() has set.
#pragma once

#include "Intl/internal/NumberPattern.h"
#include "StringTables/internal/Placeholder.h"
#include <cstddef>
#include <cstdint>
#include <optional>
#include <string>
#include <string_view>

namespace Foundation::detail {

// A placeholder, and its precision, which may come from an argument.
struct ResolvedPlaceholder {
    const StringTables::Placeholder& placeholder;
    std::optional<std::size_t> precision; // at most String::largestSize
};

// Where a number is padded with zeros: the offset in the output where they go, and the zero digit, a view of the number
// pattern or of static memory.
struct ZeroPadding {
    std::size_t at;
    std::string_view zero;
};
// No value for a number that is padded with spaces.
using Padding = std::optional<ZeroPadding>;

// Each function appends a number for the conversion characters that are listed, and returns how to pad it. Integers are
// cut to the placeholder's number of bits.
// d i u: with the locale's digits, grouping and signs; u as an unsigned number.
Padding appendDecimal(std::string& out, const ResolvedPlaceholder& resolved, const Intl::NumberPattern& pattern,
                      std::int64_t value);
// x X o: as an unsigned number, in ASCII.
Padding appendPlain(std::string& out, const ResolvedPlaceholder& resolved, std::int64_t value);
// f F e E g G: with the locale's digits, decimal separator and signs, and with its grouping if there is no exponent;
// a A: in ASCII. "inf" and "nan" are written as in C.
Padding appendFloating(std::string& out, const ResolvedPlaceholder& resolved, const Intl::NumberPattern& pattern,
                       double value);

} // namespace Foundation::detail
