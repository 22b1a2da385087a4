// Generator/Unicode.h
// What the generator has to know of Unicode; internal. Only its source includes ICU.
// Text: UTF-8 outside, code points inside; a byte that is no UTF-8 becomes U+FFFD. Threads: any; no state.
#pragma once

#include <cstddef>
#include <string>
#include <string_view>

namespace Generator::Unicode {

[[nodiscard]] std::u32string decoded(std::string_view utf8);
[[nodiscard]] std::string encoded(std::u32string_view text);

// The normal forms.
[[nodiscard]] std::u32string composed(std::u32string_view text);
[[nodiscard]] std::u32string compatible(std::u32string_view text);

// Mappings of one character to one, the same in every language.
[[nodiscard]] char32_t upper(char32_t c) noexcept;
[[nodiscard]] char32_t lower(char32_t c) noexcept;
[[nodiscard]] bool isCapital(char32_t c) noexcept; // upper case or title case
[[nodiscard]] bool isLower(char32_t c) noexcept;
[[nodiscard]] bool isDigit(char32_t c) noexcept;

// What may begin or continue an identifier in C++. Invisible characters are left out, and those younger than the
// compilers.
[[nodiscard]] bool beginsIdentifier(char32_t c) noexcept;
[[nodiscard]] bool continuesIdentifier(char32_t c) noexcept;

// How many columns of a terminal the character takes: 0, 1 or 2.
[[nodiscard]] std::size_t columnsOf(char32_t c) noexcept;

// That a reader sees the character as it is: no control, no direction mark, no separator but the space.
[[nodiscard]] bool isVisible(char32_t c) noexcept;

} // namespace Generator::Unicode
