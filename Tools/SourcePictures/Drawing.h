// SourcePictures/Drawing.h
// Vector drawings as pixels; internal.
// Threads: different drawings may be used at the same time.
#pragma once

#include "AssetCatalog/internal/Model.h"
#include "Runtime/internal/Result.h"
#include "SourcePictures/DrawingForms.h"
#include <memory>

namespace SourcePictures {

class Drawing {
public:
    explicit Drawing(std::unique_ptr<const DrawingForm> form) : form_(std::move(form)) {}

    // Makes sure that picture() succeeds at that scale, by drawing into a single pixel. Errors: damaged, no size, more
    // pixels than a catalog may hold.
    [[nodiscard]] Runtime::Result<void> check(double scale) const;
    // The drawing as a PNG of `scale` pixels per unit. It fills the picture, whose sides are rounded up to whole
    // pixels.
    [[nodiscard]] Runtime::Result<AssetCatalog::Picture> picture(double scale) const;
    [[nodiscard]] AssetCatalog::Size size() const { return form_->size(); }

private:
    std::unique_ptr<const DrawingForm> form_;
};

} // namespace SourcePictures
