// SourceBundle/ContentsPlace.h
// Locates an entry of a set in its Contents.json; internal.
#pragma once

#include "Runtime/internal/Result.h"
#include <cstddef>
#include <filesystem>
#include <string>

namespace SourceBundle {

// An error without a message, located at entry `number` (counted from 1) of the array `list`, or at the beginning of
// the file if the entry cannot be found.
[[nodiscard]] Runtime::Error entryPlace(const std::filesystem::path& file, const std::string& list, std::size_t number);

} // namespace SourceBundle
