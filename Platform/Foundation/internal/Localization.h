// Foundation/internal/Localization.h
// One language folder of a bundle and its tables; internal.
// Threads: any; lock-free. A table is read at its first lookup and kept.
#pragma once

#include "Foundation/internal/LocalizedTable.h"
#include "Runtime/internal/KeyedStore.h"
#include <optional>
#include <string>
#include <string_view>

namespace Foundation::detail {

class Localization {
public:
    // `name`: "Base" or a language. `bundle`: the bundle's path, which must outlive this object. `language`: the BCP 47
    // tag of the texts.
    Localization(std::string_view name, std::string_view bundle, std::string_view language);

    std::string_view name() const noexcept { return name_; }
    std::string_view language() const noexcept { return language_; }

    // The table with that name. If it is missing: an empty one, or null if that is not stored (see tables_). `hash`:
    // keyHash(name); with another one the lookup only takes longer. Throws std::bad_alloc, and std::system_error on
    // transient errors.
    LocalizedTable* table(std::string_view name, std::uint64_t hash) {
        LocalizedTable* const known = tables_.find(name, hash);
        return known != nullptr ? known : knownOrLoaded(name);
    }
    // Why the table's files cannot be read ("FILE:LINE:COLUMN: REASON"); no value when they are readable or missing.
    std::optional<std::string> damage(std::string_view table) const;

private:
    LocalizedTable* knownOrLoaded(std::string_view name);
    std::string pathOf(std::string_view table, std::string_view suffix) const;

    std::string name_;
    std::string_view bundle_; // its path
    std::string language_;
    // The existing tables that were looked up, and missing ones while there are fewer than storesMissingBelow tables: a
    // program may ask for any number of names.
    Runtime::KeyedStore<LocalizedTable, /*buckets=*/4> tables_;
    static constexpr std::size_t storesMissingBelow = 64;
};

} // namespace Foundation::detail
