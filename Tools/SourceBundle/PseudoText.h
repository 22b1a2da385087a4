// SourceBundle/PseudoText.h
// Texts of the pseudo-languages: transformed development texts that show layout problems before anything is translated.
// Placeholders, "%%", white space, tags, entities and backslash escapes are unchanged.
// Text: well-formed UTF-8, in any script. Threads: any; no state.
#pragma once

#include "StringTables/internal/PluralTable.h"
#include <array>
#include <cstdint>
#include <string>
#include <string_view>

namespace SourceBundle {

enum class Pseudo : std::uint8_t {
    accented, // "[Ýöûŕ çåŕţ ~~~]": accented letters, a third longer, in brackets. Cyrillic, Greek and the like have
              // a combining mark on each letter; in scripts without capital letters the letters are unchanged.
    rightToLeft // words are displayed from right to left
};

struct PseudoLanguage {
    std::string_view code;
    Pseudo kind;
};
inline constexpr std::array<PseudoLanguage, 2> pseudoLanguages = {
    {{"en-XA", Pseudo::accented}, {"ar-XB", Pseudo::rightToLeft}}};

[[nodiscard]] std::string pseudoText(std::string_view text, Pseudo kind);
// Only the format gets brackets, not its forms.
[[nodiscard]] StringTables::PluralFormat pseudoPlural(const StringTables::PluralFormat& plural, Pseudo kind);

} // namespace SourceBundle
