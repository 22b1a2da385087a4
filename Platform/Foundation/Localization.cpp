#include "Foundation/internal/Localization.h"

#include "Foundation/internal/PluralText.h"
#include "Runtime/internal/TransientError.h"
#include "StringTables/internal/BundleLayout.h"
#include "StringTables/internal/PluralTable.h"
#include "StringTables/internal/StoredTable.h"
#include "StringTables/internal/Table.h"
#include <cerrno>
#include <unistd.h>
#include <utility>
#include <vector>

namespace Foundation::detail {

namespace {

namespace layout = StringTables::bundleLayout;

bool isMissing(const Runtime::Error& error) noexcept {
    return error.cause == ENOENT || error.cause == ENOTDIR;
}

// The table at `path`; an empty one when the file is missing or damaged.
StringTables::PluralTable readPlurals(const std::string& path) {
    auto read = StringTables::PluralTable::readFile(path);
    if (read)
        return *std::move(read);
    Runtime::throwIfTransient(read.error());
    return {};
}

struct Plurals {
    explicit Plurals(StringTables::PluralTable read) : table(std::move(read)) {
        for (const StringTables::PluralEntry& entry : table.entries())
            texts.push_back(generalFormat(entry.plural));
    }

    std::optional<LocalizedFormat> find(std::string_view key, std::string_view language) const noexcept {
        const StringTables::PluralEntry* const entry = table.find(key);
        if (entry == nullptr)
            return std::nullopt;
        const auto number = static_cast<std::size_t>(entry - table.entries().data());
        return LocalizedFormat(texts[number], entry->plural, language);
    }

    StringTables::PluralTable table;
    std::vector<std::string> texts; // of the entries, for use without numbers
};

template <class Table> std::optional<std::string> damageOf(const std::string& path) {
    const auto read = Table::readFile(path);
    return read || isMissing(read.error()) ? std::nullopt : std::optional(read.error().text());
}

} // namespace

struct Localization::LoadedTable {
    LoadedTable(std::string path, StringTables::PluralTable pluralTable)
        : texts(std::move(path)), plurals(std::move(pluralTable)) {}

    StringTables::StoredTable texts;
    Plurals plurals;

    std::optional<LocalizedFormat> find(std::string_view key, std::string_view language) {
        if (const auto plural = plurals.find(key, language))
            return plural;
        const auto text = texts.find(key);
        return text ? std::optional(LocalizedFormat(*text)) : std::nullopt;
    }
};

Localization::Localization(std::string_view name, std::string directory, std::string_view language, bool mayHavePlurals)
    : name_(name), directory_(std::move(directory)), language_(language), mayHavePlurals_(mayHavePlurals) {}

std::optional<LocalizedFormat> Localization::find(std::string_view key, std::string_view table) {
    if (LoadedTable* const known = tables_.find(table))
        return known->find(key, language_);
    LoadedTable* const loaded = load(table);
    return loaded != nullptr ? loaded->find(key, language_) : std::nullopt;
}

// Reads a table and keeps it. A missing table is kept as an empty one while there is room; after that the result is
// null.
Localization::LoadedTable* Localization::load(std::string_view name) {
    if (!layout::isFileName(name))
        return nullptr;
    std::string texts = pathOf(name, layout::textsSuffix);
    const std::string plurals = mayHavePlurals_ ? pathOf(name, layout::pluralsSuffix) : std::string();
    const bool exists = ::access(texts.c_str(), F_OK) == 0 || (mayHavePlurals_ && ::access(plurals.c_str(), F_OK) == 0);
    return tables_.add(exists ? tables_.unlimited : mostMissing, name, std::move(texts),
                       mayHavePlurals_ ? readPlurals(plurals) : StringTables::PluralTable());
}

std::optional<std::string> Localization::damage(std::string_view table) const {
    if (!layout::isFileName(table))
        return std::nullopt;
    if (auto damaged = damageOf<StringTables::Table>(pathOf(table, layout::textsSuffix)))
        return damaged;
    return damageOf<StringTables::PluralTable>(pathOf(table, layout::pluralsSuffix));
}

std::string Localization::pathOf(std::string_view table, std::string_view suffix) const {
    return std::string(directory_).append("/").append(table).append(suffix);
}

} // namespace Foundation::detail
