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

// `format` with its placeholders replaced by `arguments`:
// - "%@ %s %S" print a string;
// - "%d %i %u" print an integer with the locale's digits, grouping and signs;
// - "%x %X %o" print an integer in ASCII;
// - "%hhd", "%hx" and the like print the lowest 8 or 16 bits of an integer; with any other length, or none, all 64;
// - "%c" prints the character with that code, U+FFFD for an invalid one;
// - "%f %F %e %E %g %G" print a floating-point number with the locale's digits, separators and signs;
// - "%a %A" print a floating-point number in ASCII;
// - "%%" prints a percent sign.
//
// Everything else is copied. "%2$@" selects its argument. Flags, widths and precisions work as in C, also as arguments
// ("*", "*2$"). Widths and precisions count characters, not bytes, and are limited to largestSize. In the locale
// "en_US_POSIX" numbers are formatted exactly as by the C library. A placeholder without an argument prints nothing.
// Arguments of another kind are converted: a string for a number's placeholder is printed unchanged; a number for "%@"
// as its description; an integer for "%f" as a floating-point number; a floating-point number for "%d" without its
// fraction and clamped to 64 bits. The result is at most largestGrowth bytes longer than `format`; a longer one is cut
// between two characters. Without the library's language data, numbers have ASCII digits, '-' and no grouping. Throws
// std::bad_alloc, and std::system_error when a transient error prevents loading the language data.
[[nodiscard]] LUMORA_EXPORT std::string format(std::string_view format, const Locale& locale,
                                               std::span<const FormatArgument> arguments);
inline constexpr std::size_t largestSize = 4096;
inline constexpr std::size_t largestGrowth = std::size_t{16} << 20;

// The description of any value, by the rules of Describable.
[[nodiscard]] inline std::string describing(const Describable& value) {
    return std::string(value.text());
}

} // namespace Foundation::String
