// Generator/CodeText.h
// Escapes arbitrary texts for messages and C++ code.
// Text: UTF-8, any bytes. Threads: any; no state.
#pragma once

#include <cstddef>
#include <span>
#include <string>
#include <string_view>

namespace Generator {

// The text on one line for comments and messages. Invisible characters, those newer than Unicode 13 and bytes that
// are not UTF-8 are escaped as "\n", "\t", "\u{200B}", "\xFF"; nothing else is. A text of more than `limit` characters
// is cut and ends in "…".
[[nodiscard]] std::string visibleText(std::string_view text, std::size_t limit = 100);

// The same in quotation marks.
[[nodiscard]] std::string quote(std::string_view text);

// A hash of the texts, one after the other without separators, in hexadecimal; the same on every machine and in every
// version.
[[nodiscard]] std::string fingerprint(std::span<const std::string_view> texts);

// The width of the text in terminal columns.
[[nodiscard]] std::size_t columnsOf(std::string_view text);

// The code of a C++ string literal, from quotation mark to quotation mark, whose characters are these bytes. On one
// line; only invisible and special characters are escaped.
[[nodiscard]] std::string literal(std::string_view bytes);

} // namespace Generator
