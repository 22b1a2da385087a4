// SourcePictures/VectorImages.h
// Reads vector formats; internal to the plug-in.
// `bytes` must outlive the drawing. References from an SVG to other files are not followed. Errors: damaged.
#pragma once

#include "Runtime/internal/Result.h"
#include "SourcePictures/Drawing.h"
#include <memory>
#include <string_view>

namespace SourcePictures {

using DrawingResult = Runtime::Result<std::unique_ptr<const Drawing>>;

[[nodiscard]] DrawingResult readSvg(std::string_view bytes);
// The regular drawing of a symbol's template: the medium size, else small, else large, else the whole drawing.
[[nodiscard]] DrawingResult readSymbol(std::string_view bytes);
// The first page. While a thread has a page, other threads wait here. A page must be destroyed by the thread that read
// it.
[[nodiscard]] DrawingResult readPdf(std::string_view bytes);

} // namespace SourcePictures
