// Exchange/KeyUnits.h
// Determines the units of a key, for export and for comparison in an import.
#pragma once

#include "Exchange/CatalogDocument.h"
#include "Exchange/Unit.h"
#include "SourceBundle/Diagnostics.h"
#include <filesystem>
#include <map>
#include <memory>

namespace Exchange {

// Gives access to all texts of an entry. String catalogs are read once each.
class StoredTexts {
public:
    // Reads the string catalogs of the source. Reports unreadable ones as errors.
    StoredTexts(const SourceBundle::Source& source, SourceBundle::Diagnostics& diagnostics);

    [[nodiscard]] std::vector<StoredText> of(const SourceBundle::SourceEntry& entry, std::string_view language);
    // The catalog at that path, or null.
    [[nodiscard]] CatalogDocument* catalog(const std::filesystem::path& path);

private:
    std::map<std::filesystem::path, std::unique_ptr<CatalogDocument>> catalogs_;
};

// A key of a table, with its development text and its translation.
struct Key {
    const SourceBundle::SourceTable* table = nullptr;
    const SourceBundle::SourceEntry* development = nullptr;
    const SourceBundle::SourceEntry* translated = nullptr; // or null
    std::string developmentLanguage{};                     // of the development text; may be Base
    std::string language{};
};

// The key's units in the order of its parts and categories. Plurals have a unit for each form that the language needs,
// that the translation has, or that the development text has for `zero`. Empty if nothing can be translated.
[[nodiscard]] std::vector<Unit> unitsOf(const Key& key, StoredTexts& texts);

// Whether the key can be exchanged. False if the translation has plural forms in a .stringsdict file but the
// development text is plain.
[[nodiscard]] bool isExchanged(const Key& key);

// Whether the unit's translation is missing, or marked as new in a string catalog.
[[nodiscard]] bool isMissing(const Unit& unit, std::string_view language);

} // namespace Exchange
