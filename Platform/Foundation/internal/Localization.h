// Foundation/internal/Localization.h
// One language folder of a bundle and its tables; internal.
// Threads: any; nothing takes a lock. A table is read at its first look-up and kept.
#pragma once

#include "Foundation/LocalizedFormat.h"
#include "Runtime/internal/KeyedStore.h"
#include <optional>
#include <string>
#include <string_view>

namespace Foundation::detail {

class Localization {
public:
    // `name`: of the folder, "Base" or a language; `directory`: its path; `language`: the BCP 47 tag of its texts.
    Localization(std::string_view name, std::string directory, std::string_view language, bool mayHavePlurals);

    std::string_view name() const noexcept { return name_; }

    // What the table has for `key`, if both are there. Plurals (TABLE.stringsdict) win over texts (TABLE.strings).
    // Throws std::bad_alloc, and std::system_error when the table may be there at a later try.
    std::optional<LocalizedFormat> find(std::string_view key, std::string_view table);
    // Why the table's files cannot be read ("FILE:LINE:COLUMN: REASON"); no value when they can or are not there.
    std::optional<std::string> damage(std::string_view table) const;

private:
    struct LoadedTable;

    LoadedTable* load(std::string_view name);
    std::string pathOf(std::string_view table, std::string_view suffix) const;

    std::string name_;
    std::string directory_;
    std::string language_;
    bool mayHavePlurals_;
    // Those that were found, and so many that were not: a program may look for any number of others.
    Runtime::KeyedStore<LoadedTable, 16> tables_;
    static constexpr std::size_t mostMissing = 64;
};

} // namespace Foundation::detail
