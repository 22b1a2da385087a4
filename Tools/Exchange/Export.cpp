#include "Exchange/Export.h"

#include "StringTables/internal/Unicode.h"
#include <algorithm>

namespace Exchange {

namespace fs = std::filesystem;
using SourceBundle::Severity;
using SourceBundle::Source;
using SourceBundle::SourceEntry;
using SourceBundle::SourceTable;

namespace {

// "en.lproj/Localizable.strings:12": the file relative to the source's folder that contains it (the last of several),
// or only its name, if that path is not UTF-8.
std::string placeOf(const SourceEntry& entry, std::span<const fs::path> folders) {
    fs::path shown = entry.file->path.filename();
    for (const fs::path& folder : folders)
        if (const fs::path inside = entry.file->path.lexically_relative(folder);
            !inside.empty() && *inside.begin() != ".." && StringTables::internal::isUtf8(inside.native()))
            shown = inside;
    return shown.string() + ":" + std::to_string(entry.line);
}

// Removes the parts of a key that are completely translated.
void keepMissing(std::vector<Unit>& units, const std::string& language) {
    std::vector<Unit> kept;
    for (auto begin = units.begin(); begin != units.end();) {
        const auto end =
            std::find_if(begin, units.end(), [begin](const Unit& unit) { return !isSamePart(*begin, unit); });
        if (std::any_of(begin, end, [&language](const Unit& unit) { return isMissing(unit, language); }))
            std::move(begin, end, std::back_inserter(kept));
        begin = end;
    }
    units = std::move(kept);
}

} // namespace

void forEachKey(const Source& source, const SourceTable& table, const std::string& language,
                const std::function<void(const Key&)>& visit) {
    const SourceBundle::LanguageTexts* const development = table.find(source.developmentLanguage);
    const SourceBundle::LanguageTexts* const translated = table.find(language);
    for (const SourceEntry* entry : source.developmentEntries(table)) {
        const bool isOfBase = development == nullptr || development->find(entry->key) != entry;
        visit({.table = &table,
               .development = entry,
               .translated = translated == nullptr ? nullptr : translated->find(entry->key),
               .developmentLanguage = isOfBase ? std::string(SourceBundle::baseLanguage) : source.developmentLanguage,
               .language = language});
    }
}

Translations translationsOf(const Source& source, std::span<const fs::path> folders, const std::string& language,
                            bool onlyMissing, SourceBundle::Diagnostics& diagnostics) {
    Translations translations{.sourceLanguage = source.developmentLanguage, .targetLanguage = language};
    StoredTexts texts(source, diagnostics);
    for (const SourceTable& table : source.tables)
        forEachKey(source, table, language, [&](const Key& key) {
            std::optional<std::vector<Unit>> units = unitsOf(key, texts);
            if (!units)
                return diagnostics.add(
                    Severity::warning,
                    key.translated->error(
                        "is left out, because its file cannot contain the same forms as the development text"));
            if (onlyMissing)
                keepMissing(*units, language);
            for (Unit& unit : *units)
                unit.place = placeOf(*key.development, folders);
            std::ranges::move(*units, std::back_inserter(translations.units));
        });
    return translations;
}

} // namespace Exchange
