// Exchange/Unit.h
// The units of translation: every text once, with its id.
// Text: UTF-8. Threads: plain values.
#pragma once

#include "Intl/internal/PluralCategory.h"
#include "SourceBundle/Source.h"
#include <cstddef>
#include <optional>
#include <string>
#include <string_view>
#include <vector>

namespace Exchange {

using Intl::PluralCategory;
using SourceBundle::State;

// Identifies one text of a key. A key has a single text, without part and category, or several: plural forms, the
// format and variables of a .stringsdict entry, texts for devices and substitutions of a string catalog.
struct UnitId {
    std::string table;
    std::string key;
    std::vector<std::string> part; // {"variables", "days"}, {"format"}, {"device", "mac"}, {"substitutions", "files"}
    std::optional<PluralCategory> category;

    friend bool operator==(const UnitId&, const UnitId&) = default;
};

// "Localizable/cart.title", "Localizable[variables.days.plural.one]/days left". Control characters, U+FFFE and U+FFFF,
// some of which XML cannot represent, are escaped as \u{HEX}, in the table also [ ] and /, in `part` also [ ] / and .
// because they separate the parts of an id; backslashes are doubled.
[[nodiscard]] std::string textOf(const UnitId& id);
// Parses the result of textOf(); no value if it is invalid.
[[nodiscard]] std::optional<UnitId> unitIdOf(std::string_view text);

struct Unit {
    UnitId id;
    std::string source{}; // the development text
    // The category of the unit whose development text an import compares with `source`: that of `id`, except in a
    // plural entry of a PO file, whose forms share two texts: `one` for its msgid, `other` for its msgid_plural.
    std::optional<PluralCategory> sourceCategory{};
    std::string target{};       // the translation; empty if there is none
    State state = State::isNew; // of the translation
    bool isFuzzy = false;       // the flag of its PO entry, which may be due to another form of the plural
    std::string comment{};      // for translators
    std::string place{};        // of the development text, "en.lproj/Localizable.strings:12"
    std::size_t line = 0;       // in the file that was read
};

// Whether both units belong to the same text or plural.
[[nodiscard]] inline bool isSamePart(const Unit& one, const Unit& other) {
    return one.id.key == other.id.key && one.id.part == other.id.part && one.id.table == other.id.table;
}

// The units of one language.
struct Translations {
    std::string sourceLanguage{}; // empty if a PO file does not name it
    std::string targetLanguage{};
    std::vector<Unit> units{};
    std::string file{};    // the file that they were read from
    bool hasStates = true; // false if only `isFuzzy` is known, as in PO files
};

} // namespace Exchange
