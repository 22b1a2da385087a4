// SourceBundle/Json.h
// The JSON of asset catalogs, in which any member may be missing or of another type; internal.
#pragma once

#include "Runtime/internal/Result.h"
#include <cstddef>
#include <filesystem>
#include <nlohmann/json.hpp>
#include <string>
#include <string_view>

namespace SourceBundle {

using Json = nlohmann::json;

// The object in the file. Errors: the file cannot be read or is a link, more than 4 MiB, not valid JSON, not an object;
// with line and column, without content of the file.
[[nodiscard]] Runtime::Result<Json> readJsonObject(const std::filesystem::path& file);

inline constexpr std::size_t maxJsonBytes = std::size_t{4} << 20;

// An error at the place of a byte of `text`, which the file holds.
[[nodiscard]] Runtime::Error errorAt(const std::filesystem::path& file, std::string_view text, std::size_t byte,
                                     std::string message);

// The member, or null where there is none or `object` is not an object.
[[nodiscard]] const Json& member(const Json& object, const char* name);
// The member's text, or "" where it is not a text.
[[nodiscard]] std::string text(const Json& object, const char* name);
// The member's number, or 0 where it is not a number.
[[nodiscard]] double number(const Json& object, const char* name);

} // namespace SourceBundle
