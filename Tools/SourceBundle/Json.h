// SourceBundle/Json.h
// Reads JSON of asset catalogs, where any member may be missing or have another type.
#pragma once

#include "Runtime/internal/Result.h"
#include "SourceBundle/Diagnostics.h"
#include <cstddef>
#include <filesystem>
#include <nlohmann/json.hpp>
#include <string>
#include <string_view>

namespace SourceBundle {

using Json = nlohmann::json;

// Reads the object in the file. Errors: an unreadable file, a link, more than maxJsonBytes, invalid JSON (with line and
// column), more than maxJsonDepth levels, a number that no double can represent, not an object. Their messages contain
// no text of the file. If a member appears again in its object, the last one is read, and `diagnostics` gets a warning.
[[nodiscard]] Runtime::Result<Json> readJsonObject(const std::filesystem::path& file, Diagnostics& diagnostics);

inline constexpr std::size_t maxJsonBytes = std::size_t{4} << 20;
inline constexpr int maxJsonDepth = 64; // some functions of the JSON library are recursive

// An error located at the offset `byte` of `text`, the content of the file.
[[nodiscard]] Runtime::Error errorAt(const std::filesystem::path& file, std::string_view text, std::size_t byte,
                                     std::string message);

// The member of that name, or a null value if it is missing or `object` is not an object.
[[nodiscard]] const Json& member(const Json& object, const char* name);
// The member's string, or "" if there is none.
[[nodiscard]] std::string text(const Json& object, const char* name);
// The member's number, or 0 if there is none.
[[nodiscard]] double number(const Json& object, const char* name);

} // namespace SourceBundle
