// SourcePictures/VectorImage.h
// Rasterizes drawings of any vector format; internal to the plug-in.
#pragma once

#include "SourcePictures/Drawing.h"
#include <cairo.h>

namespace SourcePictures {

// The base class of the drawings of all formats.
class VectorImage : public Drawing {
public:
    Runtime::Result<void> check(double pixelsPerUnit) const final;
    Runtime::Result<AssetCatalog::Picture> picture(double pixelsPerUnit) const final;
    // Draws into the area from the origin to size(). Errors: damaged.
    [[nodiscard]] virtual Runtime::Result<void> draw(cairo_t* context) const = 0;
};

} // namespace SourcePictures
