// StringTables/internal/TextSyntax.h
// Comments and quoted strings of tables in the text form (`"key" = "text";`).
// All functions require a NUL at `end`, as in a std::string, because they may read that character.
#pragma once

#include "StringTables/internal/Scan.h"
#include <algorithm>
#include <cstddef>
#include <string_view>

namespace StringTables::internal {

inline bool beginsComment(const char* at) noexcept {
    return *at == '/' && (at[1] == '/' || at[1] == '*');
}

// The end of the comment that begins at `at`. A line comment ends before its line break. Null if the comment is never
// closed.
inline const char* commentEnd(const char* at, const char* end) noexcept {
    if (at[1] == '/')
        return findEither(at + 2, end, '\n', '\r');
    const std::size_t close = std::string_view(at + 2, static_cast<std::size_t>(end - at - 2)).find("*/");
    return close == std::string_view::npos ? nullptr : at + close + 4;
}

struct QuotedEnd {
    const char* close;       // the closing quotation mark, or `end` if it is missing
    const char* firstEscape; // the first backslash of the string, or `close` if it has none
};
// The end of the string whose opening quotation mark is at `at`.
inline QuotedEnd quotedEnd(const char* at, const char* end) noexcept {
    const char* const first = findEither(at + 1, end, *at, '\\');
    const char* close = first;
    while (*close == '\\') // skip the escaped character
        close = findEither(std::min(close + 2, end), end, *at, '\\');
    return {close, first};
}

} // namespace StringTables::internal
