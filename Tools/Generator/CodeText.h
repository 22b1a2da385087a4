// Generator/CodeText.h
// Texts of any content as they may stand in C++ code; internal.
// Text: UTF-8, any bytes. Threads: any; no state.
#pragma once

#include <cstddef>
#include <string>
#include <string_view>

namespace Generator {

// On one line and with nothing invisible in it, for a reader of comments and messages: "\n", "\t", "\u200B", "\xFF"
// stand for what cannot be seen. Longer than `limit` characters, it is cut and ends in "…".
[[nodiscard]] std::string visibleText(std::string_view text, std::size_t limit = 100);

// A string literal of exactly these bytes, quotation marks included, on one line.
[[nodiscard]] std::string literal(std::string_view bytes);

} // namespace Generator
