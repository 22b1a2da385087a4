// Exchange/PoSyntax.h
// Parses PO files; internal.
#pragma once

#include "Runtime/internal/Result.h"
#include <cstddef>
#include <optional>
#include <string>
#include <string_view>
#include <vector>

namespace Exchange {

struct PoText {
    std::optional<std::string> context, plural; // msgctxt, msgid_plural
    std::string source;                         // msgid
    std::vector<std::string> targets;           // msgstr, or msgstr[0] and so on
    bool isFuzzy = false;
    std::size_t line = 0; // of msgid
};

// Skips obsolete entries ("#~") and comments, except for the flag "fuzzy". Errors name line and column: not UTF-8, an
// unknown keyword, an unclosed string, a bad escape, an entry without msgid or msgstr.
[[nodiscard]] Runtime::Result<std::vector<PoText>> readPoTexts(std::string_view bytes);

} // namespace Exchange
