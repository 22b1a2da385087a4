// SourcePictures/VectorImages.h
// Reads vector formats; internal.
#pragma once

#include "AssetCatalog/internal/Model.h"
#include "Runtime/internal/Result.h"
#include <cairo.h>
#include <memory>
#include <string_view>

namespace SourcePictures {

// A drawing in one of these formats.
class VectorImage {
public:
    virtual ~VectorImage() = default;

    // The size in the drawing's units, which are points if it was made for one pixel per point. 0 if it has no size.
    [[nodiscard]] virtual AssetCatalog::Size size() const = 0;
    // Draws into the area from the origin to size(). Errors: damaged.
    [[nodiscard]] virtual Runtime::Result<void> draw(cairo_t* context) const = 0;
};

using VectorImageResult = Runtime::Result<std::unique_ptr<const VectorImage>>;

// References to other files are not followed. `bytes` must outlive the drawing. Errors: damaged.
[[nodiscard]] VectorImageResult readSvg(std::string_view bytes);
// The regular drawing of a symbol's template: the medium size, else small, else large, else the whole drawing.
[[nodiscard]] VectorImageResult readSymbol(std::string_view bytes);
// The first page. While a thread has a page, other threads wait here. A page must be destroyed by the thread that read
// it.
[[nodiscard]] VectorImageResult readPdf(std::string_view bytes);

} // namespace SourcePictures
