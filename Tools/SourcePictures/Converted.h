// SourcePictures/Converted.h
// Converts raster formats that catalogs do not store to PNG; internal.
#pragma once

#include "AssetCatalog/internal/Model.h"
#include "Runtime/internal/Result.h"
#include "SourcePictures/Formats.h"
#include <string_view>

namespace SourcePictures {

// Converts the picture, or the first frame of an animation, to PNG. Precondition: `format` is gif, tiff, webp or heif.
// Errors: damaged, more pixels than a catalog may contain, no loader installed for the format.
[[nodiscard]] Runtime::Result<AssetCatalog::Picture> converted(std::string_view bytes, Format format);

} // namespace SourcePictures
