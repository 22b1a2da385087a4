#include "Foundation/internal/Localization.h"

#include "Runtime/internal/TransientError.h"
#include "StringTables/internal/Table.h"

namespace Foundation::detail {

struct Localization::LoadedTable {
    std::string name;
    StringTables::Table table; // without keys when the file is missing or damaged
    LoadedTable* next;
};

inline const Localization::LoadedTable* Localization::loaded(std::string_view name) const noexcept {
    const LoadedTable* table = tables_.load(std::memory_order_acquire);
    while (table != nullptr && table->name != name)
        table = table->next;
    return table;
}

std::optional<std::string_view> Localization::text(std::string_view key, std::string_view table) {
    const LoadedTable* found = loaded(table);
    return (found != nullptr ? *found : load(table)).table.find(key);
}

const Localization::LoadedTable& Localization::load(std::string_view name) {
    const std::lock_guard lock(loading_);
    if (const LoadedTable* table = loaded(name))
        return *table;
    StringTables::Table table;
    // A name is one component; a longer path would lead out of the folder.
    if (name.find('/') == std::string_view::npos) {
        if (auto read = StringTables::Table::readFile(directory_ + "/" + std::string(name) + ".strings"))
            table = *std::move(read);
        else
            Runtime::throwIfTransient(read.error());
    }
    auto* entry = new LoadedTable{std::string(name), std::move(table), tables_.load(std::memory_order_relaxed)};
    tables_.store(entry, std::memory_order_release);
    return *entry;
}

} // namespace Foundation::detail
