// Generator/Unicode.h
// Unicode functions for the generator; internal. Only the source file includes ICU.
// Text: converts between UTF-8 and code points; invalid bytes become U+FFFD. Threads: any; no state.
#pragma once

#include <cstddef>
#include <string>
#include <string_view>

namespace Generator::Unicode {

[[nodiscard]] std::u32string decoded(std::string_view utf8);
[[nodiscard]] std::string encoded(std::u32string_view text);

// NFC and NFKC.
[[nodiscard]] std::u32string composed(std::u32string_view text);
[[nodiscard]] std::u32string compatible(std::u32string_view text);

// Simple case mappings, independent of the language.
[[nodiscard]] char32_t upper(char32_t c) noexcept;
[[nodiscard]] char32_t lower(char32_t c) noexcept;
[[nodiscard]] bool isCapital(char32_t c) noexcept; // upper case or title case
[[nodiscard]] bool isLower(char32_t c) noexcept;
[[nodiscard]] bool isDigit(char32_t c) noexcept;

// Whether the character may begin or continue a C++ identifier. False for invisible characters and those newer than
// Unicode 13, the version that the oldest supported compilers know.
[[nodiscard]] bool beginsIdentifier(char32_t c) noexcept;
[[nodiscard]] bool continuesIdentifier(char32_t c) noexcept;

// The width of the character in terminal columns: 0, 1 or 2.
[[nodiscard]] std::size_t columnsOf(char32_t c) noexcept;

// Whether the character is visible: no control, direction mark or separator other than the space, and not newer than
// Unicode 13.
[[nodiscard]] bool isVisible(char32_t c) noexcept;

} // namespace Generator::Unicode
