// Program/Suggestion.h
// Suggests an existing name for a misspelled one.
// Text: UTF-8.
#pragma once

#include <span>
#include <string>
#include <string_view>

namespace Tools {

// Returns `; did you mean "NAME"?` with the known name closest to `word` (the first one in a tie), or an empty string
// if every name differs from `word` in more than a third of the word's bytes. Differences in case count half. Words and
// names of more than 100 bytes are not compared.
[[nodiscard]] std::string suggestion(std::string_view word, std::span<const std::string> known);

} // namespace Tools
