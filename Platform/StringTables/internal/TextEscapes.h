// StringTables/internal/TextEscapes.h
// The backslash escapes of the text form.
// Text: UTF-8. Threads: any; no state.
#pragma once

#include <string_view>

namespace StringTables::internal {

// -1 if `c` is not a hexadecimal digit.
constexpr int hexDigit(char c) noexcept {
    if (c >= '0' && c <= '9')
        return c - '0';
    const char lower = static_cast<char>(c | 0x20);
    return lower >= 'a' && lower <= 'f' ? lower - 'a' + 10 : -1;
}

struct Unescaped {
    char* end;                // of what was written
    const char* at = nullptr; // of a bad escape, and what is wrong with it
    const char* message = nullptr;
};

// Writes the characters that `raw`, the inside of a quoted string, stands for at `out`, which has room for raw.size()
// bytes: no escape is shorter than its character. A character that is not a hexadecimal digit follows `raw`.
[[nodiscard]] Unescaped unescape(std::string_view raw, char* out) noexcept;

} // namespace StringTables::internal
