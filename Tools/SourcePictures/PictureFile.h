// SourcePictures/PictureFile.h
// The picture files of source catalogs: which of them can be read, and what a compiled catalog holds of them.
// Threads: pure functions; different files may be read at the same time.
#pragma once

#include "AssetCatalog/internal/Model.h"
#include "Runtime/internal/Result.h"
#include <cstddef>
#include <cstdint>
#include <string>
#include <vector>

namespace SourcePictures {

inline constexpr std::size_t maxFileBytes = std::size_t{256} << 20;

// How a file is used.
struct Purpose {
    // Whether the file is a symbol's template, of which only the regular drawing of medium size counts.
    bool isSymbol = false;
    std::uint8_t scale = 0; // pixels per point that the file was made for; 0: any
    // A drawing made for one scale is drawn for the others as well.
    bool preservesVector = false;
    friend bool operator==(const Purpose&, const Purpose&) = default;
};

// Makes sure that picturesOf() will succeed, without drawing vectors in their size. PNG, JPEG, GIF, TIFF, WebP and HEIF
// are read by their content, whatever the file is called, as are SVG and PDF. Errors: another format, damaged, no
// size, more pixels than a catalog may hold.
[[nodiscard]] Runtime::Result<void> check(const std::string& bytes, const Purpose& purpose);

// What a catalog holds of the file: a PNG or JPEG as it is, another raster format as a PNG, a drawing (of a PDF the
// first page) as a PNG for each of the scales 1, 2 and 3, or for the scale that it was made for. That one comes first
// where there are others. Of the fits only the scale is set.
[[nodiscard]] Runtime::Result<std::vector<AssetCatalog::Picture>> picturesOf(const AssetCatalog::Bytes& bytes,
                                                                             const Purpose& purpose);

// Changes whenever picturesOf() may give other bytes for the same file: the versions of the libraries and of this code.
[[nodiscard]] std::string converterVersion();

} // namespace SourcePictures
