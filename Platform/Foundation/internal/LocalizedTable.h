// Foundation/internal/LocalizedTable.h
// The texts and plurals of one table in one language; internal.
// Threads: any; lookups in a table that was read take no lock. Ownership: views live as long as the table.
#pragma once

#include "Foundation/LocalizedFormat.h"
#include "StringTables/internal/PluralTable.h"
#include "StringTables/internal/StoredTable.h"
#include <cstddef>
#include <cstdint>
#include <optional>
#include <string>
#include <string_view>
#include <vector>

namespace Foundation::detail {

class Localization;

class LocalizedTable {
public:
    // `owner`: the language folder of the table. `textsPath`: the path of its texts, which are read when they are
    // needed; its first `bundlePathSize` bytes are the bundle's path.
    LocalizedTable(const Localization& owner, std::string_view name, std::string textsPath, std::size_t bundlePathSize,
                   StringTables::PluralTable plurals);

    const Localization& owner() const noexcept { return owner_; }
    std::string_view name() const noexcept { return name_; }
    // From TABLE.stringsdict. `language`: the language whose rules choose plural forms.
    bool hasPlurals() const noexcept { return !plurals_.entries().empty(); }
    std::optional<LocalizedFormat> findPlural(std::string_view key, std::string_view language) const noexcept;
    // From TABLE.strings. `hash`: the hash of the key. Throws like StoredTable::find().
    StringTables::FoundText findText(std::string_view key, std::uint64_t hash) { return texts_.find(key, hash); }

private:
    const Localization& owner_;
    std::string name_;
    StringTables::StoredTable texts_;
    StringTables::PluralTable plurals_;
    std::vector<std::string> pluralTexts_; // of the entries of plurals_, with every variable's form `other`
};

} // namespace Foundation::detail
