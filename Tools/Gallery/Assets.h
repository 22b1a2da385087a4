// Gallery/Assets.h
// The assets of a bundle as JSON for the page.
#pragma once

#include "Runtime/internal/Result.h"
#include <filesystem>
#include <nlohmann/json.hpp>

namespace Gallery {

struct Assets {
    // [{ "kind", "catalog", "name", "accessor", "template", "variants" }] as in Docs/gallery.md, sorted by catalog and
    // name.
    nlohmann::ordered_json list = nlohmann::ordered_json::array();
    // Data URIs of PNG and JPEG files; image variants refer to them by index.
    nlohmann::ordered_json pictures = nlohmann::ordered_json::array();
};

// Empty for a bundle without a catalog. Errors: a catalog that is damaged or cannot be read.
[[nodiscard]] Runtime::Result<Assets> assetsOf(const std::filesystem::path& bundle);

} // namespace Gallery
