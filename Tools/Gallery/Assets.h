// Gallery/Assets.h
// The assets of a bundle, as the page takes them; internal.
#pragma once

#include "Runtime/internal/Result.h"
#include <filesystem>
#include <nlohmann/json.hpp>

namespace Gallery {

struct Assets {
    // [{ "kind", "catalog", "name", "accessor", "template", "variants" }], by catalog and name.
    nlohmann::ordered_json list = nlohmann::ordered_json::array();
    // Data URIs, to whose indices the variants of images refer.
    nlohmann::ordered_json pictures = nlohmann::ordered_json::array();
};

// A bundle without a catalog has no assets. Error: a damaged catalog.
[[nodiscard]] Runtime::Result<Assets> assetsOf(const std::filesystem::path& bundle);

} // namespace Gallery
