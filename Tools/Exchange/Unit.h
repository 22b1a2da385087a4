// Exchange/Unit.h
// What translators are handed and bring back: every text once, with where it belongs.
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

// One text of a key. A key has a single text, whose part is empty, or several: the forms of a plural, the format and
// the variables of a .stringsdict entry, texts for devices and substitutions of a string catalog.
struct UnitId {
    std::string table;
    std::string key;
    std::vector<std::string> part; // {"variables", "days"}, {"format"}, {"device", "mac"}, {"substitutions", "files"}
    std::optional<PluralCategory> category;

    friend bool operator==(const UnitId&, const UnitId&) = default;
};

// "Localizable/cart.title", "Localizable[variables.days.plural.one]/days left". Whatever a file of XML cannot hold or
// would be taken for a part is escaped as \u{HEX}, a backslash doubled.
[[nodiscard]] std::string textOf(const UnitId& id);
// The same back, or no value.
[[nodiscard]] std::optional<UnitId> unitIdOf(std::string_view text);

struct Unit {
    UnitId id;
    std::string source{};                         // the development text
    std::optional<PluralCategory> sourceCategory{}; // the development form that `source` is
    std::string target{};                         // the translation; empty: none
    State state = State::isNew;                   // of the translation
    bool isFuzzy = false; // the mark that a PO file has: not translated, or the state of a form beside it
    std::string comment{};
    std::string place{};  // of the development text, "en.lproj/Localizable.strings:12"
    std::size_t line = 0; // in the file that was read
};

// The units of one language.
struct Handout {
    std::string sourceLanguage{};
    std::string targetLanguage{};
    std::vector<Unit> units{};
    std::string file{};    // it was read from
    bool hasStates = true; // false: only the marks `isFuzzy`, as in PO files
};

} // namespace Exchange
