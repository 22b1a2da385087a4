// Gallery/Traits.h
// The conditions of a variant as JSON, for the page and for `lumora assets`.
#pragma once

#include "AssetCatalog/internal/Catalog.h"
#include <cstddef>
#include <nlohmann/json.hpp>

namespace Gallery {

// { "scale", "appearance", "contrast", "direction", "language" }, without those for which the variant has no condition.
[[nodiscard]] nlohmann::ordered_json traitsOf(const AssetCatalog::Entry& entry, std::size_t variant);

} // namespace Gallery
