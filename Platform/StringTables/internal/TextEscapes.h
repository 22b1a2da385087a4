// StringTables/internal/TextEscapes.h
// The backslash escapes of the text form.
// Text: UTF-8. Threads: any; no state.
#pragma once

#include <string_view>

namespace StringTables::internal {

// The value of the hexadecimal digit `c`, or -1 if it is none.
constexpr int hexDigit(char c) noexcept {
    if (c >= '0' && c <= '9')
        return c - '0';
    const char lower = static_cast<char>(c | 0x20);
    return lower >= 'a' && lower <= 'f' ? lower - 'a' + 10 : -1;
}

struct Unescaped {
    char* end;                     // of what was written
    const char* at = nullptr;      // where a bad escape is, or null
    const char* message = nullptr; // what is wrong with it, or null
};

// Decodes `raw`, the inside of a quoted string, into `out`, which has room for raw.size() bytes (no escape is shorter
// than its character). A character must follow each backslash in `raw`, and the byte after `raw` must be readable and
// neither a backslash nor a hexadecimal digit.
[[nodiscard]] Unescaped unescape(std::string_view raw, char* out) noexcept;

} // namespace StringTables::internal
