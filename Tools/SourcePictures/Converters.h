// SourcePictures/Converters.h
// The interface of the plug-in lumora-drawing.so, which draws and converts pictures; internal. It is not loaded
// before the first picture that is neither PNG nor JPEG, because it needs many libraries. Program and plug-in are
// always built together, so the interface has no version. Threads: any.
#pragma once

#include "AssetCatalog/internal/Model.h"
#include "Runtime/Export.h"
#include "Runtime/internal/Result.h"
#include "SourcePictures/Drawing.h"
#include "SourcePictures/Formats.h"
#include <memory>
#include <string_view>

namespace SourcePictures {

class Converters {
public:
    // Reads a drawing. If `isSymbol`, an SVG is a symbol's template, whose regular drawing is read (see Purpose in
    // PictureFile.h). `bytes` must outlive the result, which must be destroyed by the same thread. Precondition:
    // `format` is svg or pdf. Errors: damaged.
    [[nodiscard]] virtual Runtime::Result<std::unique_ptr<const Drawing>> drawing(std::string_view bytes, Format format,
                                                                                  bool isSymbol) const = 0;
    // Converts the picture, or the first frame of an animation, to PNG. Precondition: `format` is gif, tiff, webp or
    // heif. Errors: damaged, more pixels than a catalog may contain, no loader installed for the format.
    [[nodiscard]] virtual Runtime::Result<AssetCatalog::Picture> converted(std::string_view bytes,
                                                                           Format format) const = 0;

protected:
    ~Converters() = default;
};

// Loads the plug-in. Throws std::runtime_error, which names its file, if it cannot be loaded: that is a fault of the
// installation, not of a picture.
[[nodiscard]] const Converters& converters();

} // namespace SourcePictures

// The only function that the plug-in exports.
extern "C" LUMORA_EXPORT const SourcePictures::Converters* lumoraDrawing() noexcept;
