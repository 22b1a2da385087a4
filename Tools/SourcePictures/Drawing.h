// SourcePictures/Drawing.h
// Rasterizes vector drawings; internal.
// Threads: different drawings may be used at the same time.
#pragma once

#include "AssetCatalog/internal/Model.h"
#include "Runtime/internal/Result.h"
#include "SourcePictures/VectorImages.h"
#include <memory>

namespace SourcePictures {

class Drawing {
public:
    explicit Drawing(std::unique_ptr<const VectorImage> image) : image_(std::move(image)) {}

    // Checks that picture() will succeed at that scale, by drawing into a single pixel. Errors: damaged, no size, more
    // pixels than a catalog may contain.
    [[nodiscard]] Runtime::Result<void> check(double scale) const;
    // Rasterizes the drawing to a PNG with `scale` pixels per unit. The drawing fills the picture, whose sides are
    // rounded up to whole pixels.
    [[nodiscard]] Runtime::Result<AssetCatalog::Picture> picture(double scale) const;
    [[nodiscard]] AssetCatalog::Size size() const { return image_->size(); }

private:
    std::unique_ptr<const VectorImage> image_;
};

} // namespace SourcePictures
