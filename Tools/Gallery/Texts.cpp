#include "Gallery/Texts.h"

#include "Foundation/NSBundle.h"
#include "Generator/Model.h"
#include "SourceBundle/Tables.h"
#include <algorithm>
#include <iterator>
#include <optional>
#include <span>
#include <string>
#include <string_view>
#include <unordered_map>
#include <unordered_set>
#include <vector>

namespace Gallery {

namespace fs = std::filesystem;
using nlohmann::ordered_json;
using SourceBundle::Diagnostics;
using SourceBundle::SourceTable;
using StringTables::Table;

namespace {

// The development language, then the others in their order.
std::vector<std::string> languagesOf(const fs::path& bundle) {
    const Foundation::NSBundle& read = Foundation::NSBundle::bundleWithPath(bundle.string());
    const std::string& development = read.developmentLocalization();
    std::vector<std::string> languages = {development};
    std::ranges::remove_copy(read.localizations(), std::back_inserter(languages), development);
    return languages;
}

using Accessors = std::unordered_map<std::string_view, std::string>; // by key

// The accessors of each table, by the table's name.
std::unordered_map<std::string_view, Accessors> accessorsOf(std::span<const SourceTable> development) {
    std::unordered_map<std::string_view, Accessors> accessors;
    Diagnostics unnamed; // told by the generator
    for (const Generator::CatalogTable& table : Generator::catalogOf(development, unnamed))
        for (const Generator::CatalogEntry& entry : table.entries) {
            const std::string groups = entry.groups.empty() ? "" : entry.groups + "::";
            accessors[table.name].emplace(entry.key, table.spelling + "::" + groups + entry.name);
        }
    return accessors;
}

// The table in each of the other languages, or an empty one.
std::vector<Table> translationsOf(const std::string& table, const fs::path& bundle,
                                  std::span<const std::string> languages, Diagnostics& diagnostics) {
    std::vector<Table> translations;
    for (const std::string& language : languages) {
        const fs::path path = bundle / (language + ".lproj") / (table + ".strings");
        std::error_code failed;
        auto read = fs::exists(path, failed) ? SourceBundle::readTable(bundle, path, diagnostics) : std::nullopt;
        translations.push_back(read ? *std::move(read) : Table());
    }
    return translations;
}

ordered_json textOf(const std::string& table, const StringTables::Entry& entry, const Accessors& accessors,
                    std::span<const Table> translations) {
    const auto accessor = accessors.find(entry.key);
    ordered_json text = {{"table", table}, {"key", entry.key}, {"accessor", nullptr}, {"values", {entry.text}}};
    if (accessor != accessors.end())
        text["accessor"] = accessor->second;
    for (const Table& translation : translations) {
        const auto value = translation.find(entry.key);
        text["values"].push_back(value ? ordered_json(*value) : ordered_json());
    }
    return text;
}

} // namespace

ordered_json textsOf(const fs::path& bundle, Diagnostics& diagnostics) {
    const std::vector<std::string> languages = languagesOf(bundle);
    const std::vector<SourceTable> development = SourceBundle::developmentTables(bundle, diagnostics);
    const auto accessors = accessorsOf(development);
    static const Accessors none;
    ordered_json texts = ordered_json::array();
    std::vector<Table> translations;
    std::unordered_set<std::string_view> seen; // keys of the table, which several folders may have
    for (const SourceTable& table : development) {
        if (&table == &development.front() || table.name != (&table)[-1].name) {
            translations = translationsOf(table.name, bundle, std::span(languages).subspan(1), diagnostics);
            seen.clear();
        }
        const auto found = accessors.find(table.name);
        for (const StringTables::Entry& entry : table.table.entries())
            if (seen.insert(entry.key).second)
                texts.push_back(
                    textOf(table.name, entry, found == accessors.end() ? none : found->second, translations));
    }
    return {{"languages", languages}, {"texts", std::move(texts)}};
}

} // namespace Gallery
