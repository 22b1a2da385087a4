#include "Gallery/Texts.h"

#include "Generator/Model.h"
#include <set>
#include <string>
#include <string_view>
#include <unordered_map>
#include <vector>

namespace Gallery {

using nlohmann::ordered_json;
using SourceBundle::LanguageTexts;
using SourceBundle::Source;
using SourceBundle::SourceEntry;
using SourceBundle::SourceTable;

namespace {

// The development language, then the others in their order.
std::vector<std::string> languagesOf(const Source& source) {
    std::set<std::string> others;
    for (const SourceTable& table : source.tables)
        for (const LanguageTexts& texts : table.languages)
            others.insert(texts.language);
    others.erase(source.developmentLanguage);
    others.erase(std::string(SourceBundle::baseLanguage));
    std::vector<std::string> languages = {source.developmentLanguage};
    languages.insert(languages.end(), others.begin(), others.end());
    return languages;
}

using Accessors = std::unordered_map<const SourceEntry*, std::string>;

Accessors accessorsOf(const Source& source) {
    Accessors accessors;
    Generator::NamesFile names;
    SourceBundle::Diagnostics unnamed; // reported by the generator
    for (const Generator::CatalogTable& table : Generator::catalogOf(source, names, unnamed))
        for (const Generator::CatalogEntry& entry : table.entries) {
            const std::string groups = entry.groups.empty() ? "" : entry.groups + "::";
            accessors.emplace(entry.source, table.spelling + "::" + groups + entry.name);
        }
    return accessors;
}

ordered_json valuesOf(const SourceTable& table, const SourceEntry& entry, const std::vector<std::string>& languages) {
    ordered_json values = {entry.text};
    for (std::size_t i = 1; i < languages.size(); ++i) {
        const LanguageTexts* texts = table.find(languages[i]);
        const SourceEntry* translation = texts == nullptr ? nullptr : texts->find(entry.key);
        values.push_back(translation == nullptr ? ordered_json() : ordered_json(translation->text));
    }
    return values;
}

} // namespace

ordered_json textsOf(const Source& source) {
    const std::vector<std::string> languages = languagesOf(source);
    const Accessors accessors = accessorsOf(source);
    ordered_json texts = ordered_json::array();
    for (const SourceTable& table : source.tables)
        for (const SourceEntry* entry : source.developmentEntries(table)) {
            const auto accessor = accessors.find(entry);
            texts.push_back(
                {{"table", table.name},
                 {"key", entry->key},
                 {"accessor", accessor == accessors.end() ? ordered_json() : ordered_json(accessor->second)},
                 {"values", valuesOf(table, *entry, languages)}});
        }
    return {{"languages", languages}, {"texts", std::move(texts)}};
}

} // namespace Gallery
