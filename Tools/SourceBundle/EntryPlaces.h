// SourceBundle/EntryPlaces.h
// Locates the entries of a set of an asset catalog in its Contents.json.
#pragma once

#include "Runtime/internal/Result.h"
#include <cstddef>
#include <filesystem>
#include <optional>
#include <string>
#include <vector>

namespace SourceBundle {

class EntryPlaces {
public:
    // `file`: the Contents.json, which is read when the first place is needed; `list`: the name of the array with the
    // entries.
    EntryPlaces(std::filesystem::path file, std::string list) : file_(std::move(file)), list_(std::move(list)) {}

    const std::filesystem::path& file() const noexcept { return file_; }
    // An error without a message, located at entry `number` (counted from 1), or at the beginning of the file if the
    // entry cannot be found.
    [[nodiscard]] Runtime::Error of(std::size_t number);

private:
    std::vector<Runtime::Error> find() const;

    std::filesystem::path file_;
    std::string list_;
    std::optional<std::vector<Runtime::Error>> places_;
};

} // namespace SourceBundle
