// AssetCatalog/internal/Catalog.h
// A compiled catalog: the file Assets.catalog of a bundle, with every image, colour and data asset of the bundle's
// source catalogs. Text: UTF-8. Threads: any, immutable after opening. Ownership: a catalog owns its index and its open
// file; entries, views and blobs live as long as it does, moved or not.
#pragma once

#include "AssetCatalog/internal/Blobs.h"
#include "AssetCatalog/internal/Model.h"
#include "Runtime/internal/Result.h"
#include <cstddef>
#include <cstdint>
#include <memory>
#include <optional>
#include <span>
#include <string>
#include <string_view>

namespace AssetCatalog {

namespace Format {
struct Asset;
struct Catalog;
} // namespace Format

inline constexpr std::string_view fileName = "Assets.catalog";

// What a catalog may hold; a file beyond it is not opened, and the builder makes none.
inline constexpr std::size_t maxBytes = std::size_t{4} << 30;
inline constexpr std::size_t maxIndexBytes = std::size_t{256} << 20; // everything but the blobs
inline constexpr std::size_t maxAssets = std::size_t{1} << 18;
inline constexpr std::size_t maxVariants = 256;       // of one asset
inline constexpr std::size_t maxNameBytes = 1024;     // of an asset, its folders included
inline constexpr std::size_t maxOtherTextBytes = 255; // of a catalog's name, a language, a type identifier
inline constexpr std::uint64_t maxPixels = std::uint64_t{64} << 20; // of one picture

// Variants as a catalog holds them. See Picture and Data.
struct PictureView {
    Fit fit;
    std::uint32_t width, height; // in pixels, at least 1
    Size points;
    Resizing resizing;
    Insets capInsets;
    Insets alignmentInsets;
    Blob blob;
};
struct DataView {
    Fit fit;
    std::string_view typeIdentifier;
    Blob blob;
};

// One asset of an open catalog.
class Entry {
public:
    Kind kind() const noexcept;
    std::string_view catalog() const noexcept; // the source catalog, "Images"
    std::string_view name() const noexcept;
    Rendering rendering() const noexcept;

    std::size_t variants() const noexcept; // at least 1
    Fit fit(std::size_t variant) const noexcept;
    std::string_view language(std::size_t variant) const noexcept; // empty: for all readers
    // Whether some variant is for the readers of one language.
    bool isLocalized() const noexcept;
    // The variant that serves best a reader who wants `fit` and reads `languages` (BCP 47 tags, the best first). The
    // language decides first: the one wanted, or the same with fewer subtags ("pt" for "pt-BR"), then a variant for all
    // readers, then any other; among those, distance().
    std::size_t best(Fit wanted, std::span<const std::string> languages = {}) const noexcept;

    // Precondition: the entry is of that kind.
    PictureView picture(std::size_t variant) const noexcept;
    ColorValue color(std::size_t variant) const noexcept;
    DataView data(std::size_t variant) const noexcept;

private:
    friend class Catalog;
    Entry(const Format::Asset* asset, const Blobs* blobs) noexcept : asset_(asset), blobs_(blobs) {}

    const Format::Asset* asset_;
    const Blobs* blobs_;
};

class Catalog {
public:
    // Opens the catalog at `path`. The whole index is checked first; no picture is read, the file stays open for that.
    // Renaming another file over it changes nothing for an open catalog. Errors: no such regular file, not a catalog,
    // another version, cut off, damaged (the message says where). The content of pictures and data is not checked.
    [[nodiscard]] static Runtime::Result<Catalog> open(const std::string& path);
    // The same from memory that outlives the catalog and starts at a multiple of 16.
    [[nodiscard]] static Runtime::Result<Catalog> read(std::span<const std::uint8_t> bytes);

    // The index of the asset of that kind and name (exact), or no value. Images, colours and data have names of their
    // own. Never fails, allocates nothing.
    [[nodiscard]] std::optional<std::size_t> find(Kind kind, std::string_view name) const noexcept;

    // The order of the assets is the catalog's own; the same input of the builder gives the same order.
    std::size_t size() const noexcept;
    Entry operator[](std::size_t index) const noexcept; // below size()

private:
    using Bytes = std::unique_ptr<const std::uint8_t[]>;
    Catalog(Bytes bytes, const Format::Catalog* index, std::unique_ptr<const Blobs> blobs) noexcept
        : bytes_(std::move(bytes)), index_(index), blobs_(std::move(blobs)) {}

    Bytes bytes_; // of the index, unless they are somebody else's
    const Format::Catalog* index_;
    std::unique_ptr<const Blobs> blobs_;
};

} // namespace AssetCatalog
