// Foundation/internal/Localization.h
// One language folder of a bundle and its tables; internal.
// Threads: any. A table is read at its first look-up and kept; later look-ups take no lock.
#pragma once

#include <atomic>
#include <mutex>
#include <optional>
#include <string>
#include <string_view>

namespace Foundation::detail {

class Localization {
public:
    // `directory`: the path of the .lproj folder.
    explicit Localization(std::string directory) : directory_(std::move(directory)) {}

    const std::string& directory() const noexcept { return directory_; }
    // The text of `key` in the table, if both are there.
    std::optional<std::string_view> text(std::string_view key, std::string_view table);

private:
    struct LoadedTable;

    const LoadedTable* loaded(std::string_view name) const noexcept;
    const LoadedTable& load(std::string_view name);

    std::string directory_;
    std::atomic<LoadedTable*> tables_{nullptr}; // a list that only grows at its head
    std::mutex loading_;
};

} // namespace Foundation::detail
