// Exchange/PoSyntax.h
// The entries of a PO file, read one after the other; internal.
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

// Obsolete entries ("#~") and comments but for the mark "fuzzy" are passed over. Errors name line and column: not
// UTF-8, an unknown keyword, a string that is not closed, a bad escape, an entry without its msgid or msgstr.
[[nodiscard]] Runtime::Result<std::vector<PoText>> readPoTexts(std::string_view bytes);

} // namespace Exchange
