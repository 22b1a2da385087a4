// Exchange/PoSyntax.h
// Parses PO files.
#pragma once

#include "Runtime/internal/Result.h"
#include <cstddef>
#include <optional>
#include <string>
#include <string_view>
#include <vector>

namespace Exchange {

// `text` without blanks at its ends.
[[nodiscard]] inline std::string_view trimmed(std::string_view text) {
    constexpr std::string_view blanks = " \t\r";
    const std::size_t begin = text.find_first_not_of(blanks);
    return begin == text.npos ? std::string_view() : text.substr(begin, text.find_last_not_of(blanks) - begin + 1);
}

// The characters that have a short escape in PO files, and what follows the backslash in it, in the same order.
inline constexpr std::string_view poEscapedCharacters = "\"\\\n\t\r\a\b\f\v", poEscapeLetters = "\"\\ntrabfv";

// An entry of a PO file.
struct PoText {
    std::optional<std::string> context, plural; // msgctxt, msgid_plural
    std::string source;                         // msgid
    std::vector<std::string> targets;           // msgstr, or msgstr[0] and so on
    bool isFuzzy = false;
    std::size_t line = 0; // of msgid
};

// Skips obsolete entries ("#~") and comments, except for the flag "fuzzy". Errors, with line and column: bytes that are
// not UTF-8, and wrong syntax, such as an unclosed string or an entry without msgstr.
[[nodiscard]] Runtime::Result<std::vector<PoText>> readPoTexts(std::string_view bytes);

} // namespace Exchange
