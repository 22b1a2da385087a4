// SourceBundle/SystemColors.h
// The named system colours that catalogs refer to.
#pragma once

#include "AssetCatalog/internal/Model.h"
#include <optional>
#include <string_view>

namespace SourceBundle {

struct SystemColor {
    AssetCatalog::ColorValue light;
    AssetCatalog::ColorValue dark;
};

// The colour that catalogs call "systemRedColor", "labelColor" and so on; no value if the name is unknown. "Color" at
// the end may be missing. Docs/catalogs.md lists the colours.
[[nodiscard]] std::optional<SystemColor> systemColor(std::string_view name);

} // namespace SourceBundle
