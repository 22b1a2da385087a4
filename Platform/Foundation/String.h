// Foundation/String.h
// printf-style formatting with a locale, and the platform's default description of a value.
// Text: UTF-8; invalid bytes pass through as they are. Threads: any; no state.
#pragma once

#include "Foundation/Describable.h"
#include "Foundation/FormatArgument.h"
#include "Foundation/Locale.h"
#include "Runtime/Export.h"
#include <cstddef>
#include <span>
#include <string>
#include <string_view>

namespace Foundation::String {

// `format` with its placeholders replaced by `arguments`. "%@" prints a text argument, "%d" and its kin a whole number
// in the locale's digits, grouping and minus sign, "%x %X %o %c" a plain one, "%%" a percent sign; "%2$@" names its
// argument. Never reads an argument that is not there: a missing one prints nothing, a text under "%d" prints as text,
// a number under "%@" in plain decimal. What is no placeholder is taken literally. Flags as in C; widths and precisions
// count characters and end at largestSize. A precision is the least number of digits, of a text the greatest number of
// characters. "%c" prints U+FFFD for what is no character. Without the library's language data numbers have ASCII
// digits, '-' and no grouping. Throws nothing but std::bad_alloc.
[[nodiscard]] LUMORA_EXPORT std::string format(std::string_view format, const Locale& locale,
                                               std::span<const FormatArgument> arguments);
inline constexpr std::size_t largestSize = 4096;

// The description of any value, by the rules of Describable.
[[nodiscard]] inline std::string describing(const Describable& value) {
    return std::string(value.text());
}

} // namespace Foundation::String
