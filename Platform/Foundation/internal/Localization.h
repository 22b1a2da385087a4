// Foundation/internal/Localization.h
// One language folder of a bundle and its tables; internal.
// Threads: any. A table is read at its first look-up and kept; later look-ups take no lock.
#pragma once

#include "Foundation/LocalizedFormat.h"
#include <atomic>
#include <mutex>
#include <optional>
#include <string>
#include <string_view>

namespace Foundation::detail {

class Localization {
public:
    // `directory`: the path of the .lproj folder; `language`: the BCP 47 tag of its texts.
    Localization(std::string directory, std::string_view language)
        : directory_(std::move(directory)), language_(language) {}

    const std::string& directory() const noexcept { return directory_; }
    // What the table has for `key`, if both are there. Plurals (TABLE.stringsdict) win over texts (TABLE.strings).
    std::optional<LocalizedFormat> find(std::string_view key, std::string_view table);

private:
    struct LoadedTable;

    const LoadedTable* loaded(std::string_view name) const noexcept;
    const LoadedTable& load(std::string_view name);

    std::string directory_;
    std::string language_;
    std::atomic<LoadedTable*> tables_{nullptr}; // a list that only grows at its head
    std::mutex loading_;
};

} // namespace Foundation::detail
