// SourcePictures/Converted.h
// Raster formats that a catalog does not hold, made into PNG; internal.
#pragma once

#include "AssetCatalog/internal/Model.h"
#include "Runtime/internal/Result.h"
#include "SourcePictures/Formats.h"
#include <string_view>

namespace SourcePictures {

// The picture, of an animation the first frame, as a PNG. Precondition: `format` is gif, tiff, webp or heif. Errors:
// damaged, more pixels than a catalog may hold, no loader of the format on this machine.
[[nodiscard]] Runtime::Result<AssetCatalog::Picture> converted(std::string_view bytes, Format format);

} // namespace SourcePictures
