#include "Foundation/internal/Localization.h"

#include "Foundation/internal/PluralText.h"
#include "Runtime/internal/TransientError.h"
#include "StringTables/internal/PluralTable.h"
#include "StringTables/internal/Table.h"
#include <vector>

namespace Foundation::detail {

namespace {

// The table at `path`; without keys when the file is missing or damaged.
template <class Table> Table readTable(const std::string& path) {
    if (auto read = Table::readFile(path))
        return *std::move(read);
    else
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
    std::vector<std::string> texts; // of the entries, where there are no numbers
};

} // namespace

struct Localization::LoadedTable {
    std::string name;
    StringTables::Table texts;
    Plurals plurals;
    LoadedTable* next;
};

inline const Localization::LoadedTable* Localization::loaded(std::string_view name) const noexcept {
    const LoadedTable* table = tables_.load(std::memory_order_acquire);
    while (table != nullptr && table->name != name)
        table = table->next;
    return table;
}

std::optional<LocalizedFormat> Localization::find(std::string_view key, std::string_view name) {
    const LoadedTable* const known = loaded(name);
    const LoadedTable& table = known != nullptr ? *known : load(name);
    if (const auto plural = table.plurals.find(key, language_))
        return plural;
    const auto text = table.texts.find(key);
    return text ? std::optional(LocalizedFormat(*text)) : std::nullopt;
}

const Localization::LoadedTable& Localization::load(std::string_view name) {
    const std::lock_guard lock(loading_);
    if (const LoadedTable* table = loaded(name))
        return *table;
    StringTables::Table texts;
    StringTables::PluralTable plurals;
    // A name is one component; a longer path would lead out of the folder.
    if (name.find('/') == std::string_view::npos) {
        const std::string path = directory_ + "/" + std::string(name);
        texts = readTable<StringTables::Table>(path + ".strings");
        plurals = readTable<StringTables::PluralTable>(path + ".stringsdict");
    }
    auto* entry = new LoadedTable{std::string(name), std::move(texts), Plurals(std::move(plurals)),
                                  tables_.load(std::memory_order_relaxed)};
    tables_.store(entry, std::memory_order_release);
    return *entry;
}

} // namespace Foundation::detail
