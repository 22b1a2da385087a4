// Exchange/KeyUnits.h
// The units of a key: what an export writes, and what an import compares with.
#pragma once

#include "Exchange/CatalogDocument.h"
#include "Exchange/Unit.h"
#include "SourceBundle/Diagnostics.h"
#include <filesystem>
#include <map>
#include <memory>

namespace Exchange {

// Every text of an entry as its file has it. String catalogs are read for it, once each.
class StoredTexts {
public:
    // Reads the string catalogs of the source. What cannot be read is an error in `diagnostics`.
    StoredTexts(const SourceBundle::Source& source, SourceBundle::Diagnostics& diagnostics);

    [[nodiscard]] std::vector<StoredText> of(const SourceBundle::SourceEntry& entry, std::string_view language);
    // The catalog of that path.
    [[nodiscard]] CatalogDocument* catalog(const std::filesystem::path& path);

private:
    std::map<std::filesystem::path, std::unique_ptr<CatalogDocument>> catalogs_;
};

// A key in its table, in the development language and in the one that it is translated to.
struct Key {
    const SourceBundle::SourceTable* table = nullptr;
    const SourceBundle::SourceEntry* development = nullptr;
    const SourceBundle::SourceEntry* translated = nullptr; // or null
    std::string developmentLanguage{};                     // of the entry: it may be one of Base
    std::string language{};
};

// The key's units, in the order of its parts and of the categories, a unit for each form that the language needs, that
// the translation has or that is for zero in the development text. None where nothing can be translated.
[[nodiscard]] std::vector<Unit> unitsOf(const Key& key, StoredTexts& texts);

// Whether a text is the key's own: the development entry has the structure that the translation has. A translation with
// plural forms in a .stringsdict of its own, of a plain development text, is not.
[[nodiscard]] bool isExchanged(const Key& key);

// Whether the unit's translation is missing, or new in a string catalog.
[[nodiscard]] bool isMissing(const Unit& unit, std::string_view language);

} // namespace Exchange
