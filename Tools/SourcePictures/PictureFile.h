// SourcePictures/PictureFile.h
// Reads and converts the picture files of source catalogs.
// Threads: any; no shared state.
// Functions throw std::bad_alloc when memory runs out, and those that draw or convert std::runtime_error if the plug-in
// for that cannot be loaded (Converters.h).
#pragma once

#include "AssetCatalog/internal/Model.h"
#include "Runtime/internal/Result.h"
#include <cstddef>
#include <cstdint>
#include <string>
#include <vector>

namespace SourcePictures {

// The greatest size in bytes of a picture file or of a data asset's file; larger ones are not read.
inline constexpr std::size_t maxFileBytes = std::size_t{256} << 20;

// How a file is used.
struct Purpose {
    // Whether the file is a symbol's template: an SVG with a drawing for each weight and size of the symbol, of which
    // one of regular weight is used, if possible in medium size; the whole file if it has none.
    bool isSymbol = false;
    std::uint8_t scale = 0; // the pixels per point that the file was made for; 0 means any
    // Whether a drawing made for one scale is also rasterized for the other ones of 1, 2 and 3.
    bool preservesVector = false;
    friend bool operator==(const Purpose&, const Purpose&) = default;
};

// Checks that the file is intact and that picturesOf() will succeed, without rasterizing drawings at full size. The
// format (PNG, JPEG, GIF, TIFF, WebP, HEIF, SVG, PDF) is detected from the content, not the file name. Errors: another
// format, damaged, no size, more pixels than a catalog may contain or cairo can draw, no loader installed for the
// format.
[[nodiscard]] Runtime::Result<void> check(const std::string& bytes, const Purpose& purpose);

// The pictures that a catalog stores for the file: a PNG or JPEG unchanged; other raster formats converted to PNG; a
// drawing (or the first page of a PDF) as PNGs. A drawing for any scale gives PNGs for the scales 1, 2 and 3; a drawing
// for one scale gives one for that scale, and with preservesVector then those for the rest of 1, 2 and 3. In
// Picture::fit only the scale is set. Errors: those of check(), except that damage after the header of a PNG or JPEG is
// not noticed.
[[nodiscard]] Runtime::Result<std::vector<AssetCatalog::Picture>> picturesOf(const AssetCatalog::Bytes& bytes,
                                                                             const Purpose& purpose);

// Identifies the version of this code and those of the libraries that it was built with: with others, picturesOf() may
// give other bytes for the same file. It does not cover the machine's fonts and gdk-pixbuf loaders.
[[nodiscard]] std::string converterVersion();

} // namespace SourcePictures
