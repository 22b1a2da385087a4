// Check/Languages.h
// How languages write, as far as the rules differ for them.
// Text: language tags as folders have them ("pt-BR"). Threads: any; constant data.
#pragma once

#include <string_view>

namespace Check {

// "pt" of "pt-BR".
[[nodiscard]] std::string_view primaryLanguage(std::string_view tag) noexcept;

// Whether both are one language but for the region ("en-GB", "en"), so that each serves the readers of the other.
[[nodiscard]] bool areVariants(std::string_view one, std::string_view other) noexcept;

// Whether words are written without spaces between them: Chinese, Japanese, Thai, Lao, Khmer, Burmese.
[[nodiscard]] bool writesWithoutSpaces(std::string_view tag) noexcept;

// Whether a sentence may end without a full stop where other languages have one.
[[nodiscard]] bool mayOmitFullStop(std::string_view tag) noexcept;

// Whether `word`, in lower case, may follow itself in a correct sentence.
[[nodiscard]] bool mayRepeat(std::string_view word, std::string_view tag) noexcept;

// The mark that ends a text, whatever the language writes for it; `none` for a letter or another character.
enum class Mark { none, fullStop, question, exclamation, colon, semicolon, comma, ellipsis };
// Of the end of `text`, without white space, quotation marks and brackets behind it.
[[nodiscard]] Mark lastMark(std::string_view text, std::string_view tag) noexcept;

} // namespace Check
