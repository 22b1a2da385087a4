// SourcePictures/Drawing.h
// A vector drawing that was read from a file.
// Threads: different drawings may be used at the same time.
#pragma once

#include "AssetCatalog/internal/Model.h"
#include "Runtime/internal/Result.h"

namespace SourcePictures {

class Drawing {
public:
    virtual ~Drawing() = default;

    // The size in the drawing's units: pixels if it was made for one scale, points if it is for all. 0 if it has no
    // size.
    [[nodiscard]] virtual AssetCatalog::Size size() const = 0;
    // Checks that picture() will succeed, by drawing into a single pixel. Errors: damaged, no size, more pixels than a
    // catalog may contain or cairo can draw.
    [[nodiscard]] virtual Runtime::Result<void> check(double pixelsPerUnit) const = 0;
    // Rasterizes the drawing to a PNG. The drawing fills the picture, whose sides are rounded up to whole pixels.
    // Errors: those of check().
    [[nodiscard]] virtual Runtime::Result<AssetCatalog::Picture> picture(double pixelsPerUnit) const = 0;
};

} // namespace SourcePictures
