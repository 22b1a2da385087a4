// SourcePictures/Converted.h
// Converts to PNG the raster formats that catalogs do not store; internal to the plug-in.
#pragma once

#include "AssetCatalog/internal/Model.h"
#include "Runtime/internal/Result.h"
#include "SourcePictures/Formats.h"
#include <string_view>

namespace SourcePictures {

// Implements Converters::converted().
[[nodiscard]] Runtime::Result<AssetCatalog::Picture> converted(std::string_view bytes, Format format);

} // namespace SourcePictures
