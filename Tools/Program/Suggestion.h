// Program/Suggestion.h
// What a user may have meant by a name that does not exist.
// Text: UTF-8.
#pragma once

#include <span>
#include <string>
#include <string_view>

namespace Tools {

// `; did you mean "NAME"?` with the known name that differs least from `word`, the first of equals; empty if none
// differs by at most a third of its letters. Letters that differ in case only are half as different. Names beyond 100
// bytes are not compared.
[[nodiscard]] std::string suggestion(std::string_view word, std::span<const std::string> known);

} // namespace Tools
