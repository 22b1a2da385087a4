// Check/Characters.h
// Functions on characters.
// Text: well-formed UTF-8. Threads: any; no state.
#pragma once

#include "StringTables/internal/Unicode.h"
#include <cstring>
#include <string_view>

namespace Check {

// Removes the last character of `text` and returns it; 0 if the text is empty.
[[nodiscard]] inline char32_t takeLastCharacter(std::string_view& text) noexcept {
    if (text.empty())
        return 0;
    std::size_t begin = text.size() - 1;
    while (begin > 0 && !StringTables::internal::beginsCharacter(text[begin]))
        --begin;
    std::string_view last = text.substr(begin);
    text = text.substr(0, begin);
    return StringTables::internal::takeCharacter(last);
}

// The offset of the first `part` in `text` at or after `from`, which is at most the text's size; or npos. Faster than
// string_view::find, which stops at each occurrence of the first character.
[[nodiscard]] inline std::size_t findPart(std::string_view text, std::string_view part, std::size_t from = 0) noexcept {
    if (text.size() - from < part.size())
        return text.npos;
    const void* const found = ::memmem(text.data() + from, text.size() - from, part.data(), part.size());
    return found == nullptr ? text.npos : static_cast<std::size_t>(static_cast<const char*>(found) - text.data());
}

// White space, including line breaks.
[[nodiscard]] constexpr bool isSpace(char32_t c) noexcept {
    return c == ' ' || (c >= 0x09 && c <= 0x0D) || c == 0x85 || c == 0xA0 || (c >= 0x2000 && c <= 0x200A) ||
           c == 0x2028 || c == 0x2029 || c == 0x202F || c == 0x205F || c == 0x3000;
}
[[nodiscard]] constexpr bool isLineBreak(char32_t c) noexcept {
    return c == '\n' || c == '\r' || c == 0x85 || c == 0x2028 || c == 0x2029;
}
// Direction marks, joiners, zero-width spaces, the byte-order mark.
[[nodiscard]] constexpr bool isInvisible(char32_t c) noexcept {
    return c == 0x61C || (c >= 0x200B && c <= 0x200F) || (c >= 0x202A && c <= 0x202E) || (c >= 0x2060 && c <= 0x2069) ||
           c == 0xFEFF;
}

} // namespace Check
