// Exchange/KeyUnits.h
// Determines the units of a key, for export and for comparison in an import.
#pragma once

#include "Exchange/CatalogDocument.h"
#include "Exchange/Unit.h"
#include "SourceBundle/Diagnostics.h"
#include <filesystem>
#include <map>
#include <memory>
#include <optional>

namespace Exchange {

// Gives access to all texts of an entry, also to those for devices, which a Source leaves out. String catalogs are read
// once each.
class StoredTexts {
public:
    // Reads the string catalogs of the source. Reports unreadable ones as errors.
    StoredTexts(const SourceBundle::Source& source, SourceBundle::Diagnostics& diagnostics);

    // The texts of `entry`, an entry of `language`.
    [[nodiscard]] std::vector<StoredText> of(const SourceBundle::SourceEntry& entry, std::string_view language);
    // The catalog at that path, or null.
    [[nodiscard]] CatalogDocument* catalog(const std::filesystem::path& path);

private:
    std::map<std::filesystem::path, std::unique_ptr<CatalogDocument>> catalogs_;
};

// A key of a table, with its development text and its translation to `language`.
struct Key {
    const SourceBundle::SourceTable* table = nullptr;
    const SourceBundle::SourceEntry* development = nullptr;
    const SourceBundle::SourceEntry* translated = nullptr; // or null
    std::string developmentLanguage{};                     // of the development text; may be Base
    std::string language{};
};

// The key's units in the order of its parts and categories. A plural has a unit for each form of the language, for each
// further form that the translation has, and for `zero` if the development text has it. Empty if nothing is to be
// translated. No value if the translation is in a file of another kind than the development text, except that
// - a plural of a .stringsdict may be translated by a text in a .strings: its units then have no target, because an
//   import replaces that text by a plural;
// - a plain text of a string catalog may be translated in a .strings;
// - a text in a .strings may be translated in a string catalog.
[[nodiscard]] std::optional<std::vector<Unit>> unitsOf(const Key& key, StoredTexts& texts);

// Whether a string catalog marks the translation as new, or there is none although the unit has a development text and,
// if it is a plural form, the language needs it (needsCategory()).
[[nodiscard]] bool isMissing(const Unit& unit, std::string_view language);

} // namespace Exchange
