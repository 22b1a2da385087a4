// SourceBundle/PseudoText.h
// Texts of the pseudo-languages: development texts that show, before anything is translated, what a translation will
// need of the layout. Placeholders, "%%", line breaks, tags, entities and backslash escapes stay as they are.
// Text: UTF-8. Threads: any; no state.
#pragma once

#include "StringTables/internal/PluralTable.h"
#include <array>
#include <cstdint>
#include <string>
#include <string_view>

namespace SourceBundle {

enum class Pseudo : std::uint8_t {
    accented,   // "[Ŷöûŕ çåŕţ ~~~]": letters with accents, a third longer, in brackets
    rightToLeft // each word with letters is shown from right to left
};

struct PseudoLanguage {
    std::string_view code;
    Pseudo kind;
};
inline constexpr std::array<PseudoLanguage, 2> pseudoLanguages = {
    {{"en-XA", Pseudo::accented}, {"ar-XB", Pseudo::rightToLeft}}};

[[nodiscard]] std::string pseudoText(std::string_view text, Pseudo kind);
// The format alone has brackets; its forms have the rest.
[[nodiscard]] StringTables::PluralFormat pseudoPlural(const StringTables::PluralFormat& plural, Pseudo kind);

} // namespace SourceBundle
