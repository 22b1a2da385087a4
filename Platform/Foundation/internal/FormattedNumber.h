// Foundation/internal/FormattedNumber.h
// Formats a number for a printf placeholder, before padding to its width; internal.
// Text: UTF-8. Threads: any; no state. In the locale "en_US_POSIX" the results equal those of the C library, whatever
// the process's C locale is.
#pragma once

#include "Intl/internal/NumberPattern.h"
#include "StringTables/internal/Placeholder.h"
#include <cstddef>
#include <cstdint>
#include <optional>
#include <string>
#include <string_view>

namespace Foundation::detail {

struct Conversion {
    const StringTables::Placeholder& placeholder;
    std::optional<std::size_t> precision; // at most String::largestSize
};

// For a zero-padded number: the offset in the output where the zeros go, and the zero digit. Numbers without it are
// padded with spaces in front.
struct ZeroPadding {
    std::size_t at;
    std::string_view zero;
};
using Padding = std::optional<ZeroPadding>;

// Each appends the number.
// d i u: with the locale's digits, grouping and signs.
Padding appendDecimal(std::string& out, const Conversion& conversion, const Intl::NumberPattern& pattern,
                      std::int64_t value);
// x X o: in ASCII.
Padding appendPlain(std::string& out, const Conversion& conversion, std::int64_t value);
// f F e E g G: with the locale's digits, decimal separator and signs, and with its grouping if there is no exponent;
// a A: in ASCII. "inf" and "nan" are written as in C.
Padding appendFloating(std::string& out, const Conversion& conversion, const Intl::NumberPattern& pattern,
                       double value);

} // namespace Foundation::detail
