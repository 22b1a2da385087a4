// Check/Languages.h
// Differences between languages that the rules depend on.
// Text: language tags as in folder names ("pt-BR"). Threads: any; constant data.
#pragma once

#include <string_view>

namespace Check {

// "pt" for "pt-BR".
[[nodiscard]] std::string_view primaryLanguage(std::string_view tag) noexcept;

// Whether both are the same language, perhaps of different regions ("en-GB", "en"), so that readers of one can read the
// other. Serbian and Chinese, whose regions use different scripts, must have equal tags.
[[nodiscard]] bool areVariants(std::string_view one, std::string_view other) noexcept;

// Whether words are written without spaces between them: Chinese, Japanese, Thai, Lao, Khmer, Burmese.
[[nodiscard]] bool writesWithoutSpaces(std::string_view tag) noexcept;

// Whether a sentence may omit the full stop that other languages require.
[[nodiscard]] bool mayOmitFullStop(std::string_view tag) noexcept;

// Whether `word`, in lower case, may follow itself in a correct sentence.
[[nodiscard]] bool mayRepeat(std::string_view word, std::string_view tag) noexcept;

// A punctuation mark of any script: U+3002 is a full stop. `none`: another character, or no character.
enum class Mark { none, fullStop, question, exclamation, colon, semicolon, comma, ellipsis };
// The mark at the end of `text`, ignoring white space, invisible characters, quotation marks and brackets after it.
[[nodiscard]] Mark lastMark(std::string_view text, std::string_view tag) noexcept;

} // namespace Check
