// Generator/CodeText.h
// Texts of any content, made fit for messages and for C++ code.
// Text: UTF-8, any bytes. Threads: any; no state.
#pragma once

#include <cstddef>
#include <span>
#include <string>
#include <string_view>

namespace Generator {

// On one line and with nothing invisible in it, for comments and messages: "\n", "\t", "\u{200B}", "\xFF"
// replace what cannot be seen. Longer than `limit` characters, it is cut and ends in "…".
[[nodiscard]] std::string visibleText(std::string_view text, std::size_t limit = 100);

// The same in quotation marks.
[[nodiscard]] std::string quote(std::string_view text);

// A number that is the same for the same texts, on every machine, in hexadecimal.
[[nodiscard]] std::string fingerprint(std::span<const std::string_view> texts);

// How many columns of a terminal the text takes.
[[nodiscard]] std::size_t columnsOf(std::string_view text);

// A string literal of exactly these bytes, quotation marks included, on one line.
[[nodiscard]] std::string literal(std::string_view bytes);

} // namespace Generator
