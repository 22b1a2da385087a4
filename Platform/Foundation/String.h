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
// - "%@", "%s" and "%S" print a text;
// - "%d %i %u" print a whole number in the locale's digits, grouping and signs, "%x %X %o" in ASCII, "%c" the character
//   of that number, U+FFFD for what is not a character. "hh" and "h" look at the lowest 8 or 16 bits;
// - "%f %F %e %E %g %G" print a floating number in the locale's digits, decimal separator, grouping and signs, "%a %A"
//   in ASCII;
// - "%%" prints a percent sign, and what is not a placeholder is taken literally.
// "%2$@" names its argument. Flags, widths and precisions are C's, as arguments ("*", "*2$") too; in the locale
// "en_US_POSIX" numbers print exactly as the C library prints them. Widths and precisions count characters and end at
// largestSize. Never reads an argument that is not there: it prints nothing. A text under a number's placeholder prints
// as it is; a number under "%@" prints as its description, a whole number under "%f" as a floating one, a floating one
// under "%d" without its fraction, the nearest 64-bit number if it is out of range.
// The result is at most largestGrowth bytes longer than `format`: a longer one is cut between two characters.
// Without the library's language data numbers have ASCII digits, '-' and no grouping. Throws std::bad_alloc, and
// std::system_error where the language data cannot be loaded for the moment.
[[nodiscard]] LUMORA_EXPORT std::string format(std::string_view format, const Locale& locale,
                                               std::span<const FormatArgument> arguments);
inline constexpr std::size_t largestSize = 4096;
inline constexpr std::size_t largestGrowth = std::size_t{16} << 20;

// The description of any value, by the rules of Describable.
[[nodiscard]] inline std::string describing(const Describable& value) {
    return std::string(value.text());
}

} // namespace Foundation::String
