// Gallery/Texts.h
// The texts of a bundle in every language, as the page takes them; internal.
#pragma once

#include "SourceBundle/Diagnostics.h"
#include <filesystem>
#include <nlohmann/json.hpp>

namespace Gallery {

// { "languages": [CODE], "texts": [{ "table", "key", "accessor", "values" }] }, the development language first, and a
// value, or null, for each language.
[[nodiscard]] nlohmann::ordered_json textsOf(const std::filesystem::path& bundle,
                                             SourceBundle::Diagnostics& diagnostics);

} // namespace Gallery
