// SourceBundle/ColorComponents.h
// The components of a colour as catalogs write them; internal.
#pragma once

#include "AssetCatalog/internal/Model.h"
#include "Runtime/internal/Result.h"
#include <functional>
#include <optional>
#include <string>
#include <string_view>

namespace SourceBundle {

// The space that a catalog calls "srgb", "extended-srgb", "display-p3", "gray-gamma-22" or "extended-gray".
[[nodiscard]] std::optional<AssetCatalog::ColorSpace> colorSpaceNamed(std::string_view name);

// A colour of that space. `component` gives the text of "red", "green", "blue", "white" or "alpha" (1 without one): a
// decimal ("0.5"), a whole number of 255 ("128") or of 0xFF ("0x80"). The error tells which component is none.
[[nodiscard]] Runtime::Result<AssetCatalog::ColorValue>
colorFrom(AssetCatalog::ColorSpace space, const std::function<std::optional<std::string>(const char*)>& component);

} // namespace SourceBundle
