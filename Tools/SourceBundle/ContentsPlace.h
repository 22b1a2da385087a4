// SourceBundle/ContentsPlace.h
// Where in a Contents.json an entry of a set is; internal.
#pragma once

#include "Runtime/internal/Result.h"
#include <cstddef>
#include <filesystem>
#include <string>

namespace SourceBundle {

// An error without a message at the place of the entry `number` (from 1) of the array `list`; at the beginning of the
// file where that cannot be found.
[[nodiscard]] Runtime::Error entryPlace(const std::filesystem::path& file, const std::string& list, std::size_t number);

} // namespace SourceBundle
