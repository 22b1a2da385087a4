// SourcePictures/DrawingForms.h
// The vector formats; internal.
#pragma once

#include "AssetCatalog/internal/Model.h"
#include "Runtime/internal/Result.h"
#include <cairo.h>
#include <memory>
#include <string_view>

namespace SourcePictures {

// A drawing that was read.
class DrawingForm {
public:
    virtual ~DrawingForm() = default;

    // In the drawing's units, which are points when it was made for one pixel per point. 0 if the drawing has no size.
    [[nodiscard]] virtual AssetCatalog::Size size() const = 0;
    // Draws into the area from the origin to size(). Errors: damaged.
    [[nodiscard]] virtual Runtime::Result<void> draw(cairo_t* context) const = 0;
};

using DrawingResult = Runtime::Result<std::unique_ptr<const DrawingForm>>;

// Nothing outside of `bytes`, which must outlive the drawing, is read. Errors: damaged.
[[nodiscard]] DrawingResult readSvg(std::string_view bytes);
// Of a symbol's template the regular drawing: of medium size, or else of the small or large one; without any of them
// the whole drawing.
[[nodiscard]] DrawingResult readSymbol(std::string_view bytes);
// The first page. While a thread has one, other threads wait here; it is destroyed by the thread that read it.
[[nodiscard]] DrawingResult readPdf(std::string_view bytes);

} // namespace SourcePictures
