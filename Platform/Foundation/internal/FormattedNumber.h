// Foundation/internal/FormattedNumber.h
// A number as a printf placeholder prints it, before it is brought to its width; internal.
// Text: UTF-8. Threads: any; no state. In the locale "en_US_POSIX" every result is the C library's, whatever the
// process's own C locale is.
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

// Where the zeros of a zero-padded number go, as an offset in the output, and what they look like. Without zeros to
// pad with, spaces go in front of the number.
struct ZeroPadding {
    std::size_t at;
    std::string_view zero;
};
using Padding = std::optional<ZeroPadding>;

// Each appends the number.
// d i u: in the locale's digits, grouping and signs.
Padding appendDecimal(std::string& out, const Conversion& conversion, const Intl::NumberPattern& pattern,
                      std::int64_t value);
// x X o: in ASCII.
Padding appendPlain(std::string& out, const Conversion& conversion, std::int64_t value);
// f F e E g G: in the locale's digits, decimal separator and signs, with its grouping where there is no exponent;
// a A: in ASCII. "inf" and "nan" are C's.
Padding appendFloating(std::string& out, const Conversion& conversion, const Intl::NumberPattern& pattern,
                       double value);

} // namespace Foundation::detail
