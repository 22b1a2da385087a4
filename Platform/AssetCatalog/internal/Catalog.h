// AssetCatalog/internal/Catalog.h
// A compiled catalog: the file Assets.catalog of a bundle, with all image, colour and data assets of the bundle's
// source catalogs.
// Text: UTF-8. Threads: any, immutable after opening. Ownership: a catalog from open() owns its index and its open
// file; entries, views and blobs stay valid as long as the catalog lives, also after a move.
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

// Limits. A file that exceeds them is not opened, and the builder creates none.
inline constexpr std::size_t maxBytes = std::size_t{4} << 30;
inline constexpr std::size_t maxIndexBytes = std::size_t{256} << 20; // everything but the pictures' and data's bytes
inline constexpr std::size_t maxAssets = std::size_t{1} << 18;
inline constexpr std::size_t maxVariants = 1024;      // of one asset
inline constexpr std::size_t maxNameBytes = 1024;     // of an asset, including its folders
inline constexpr std::size_t maxOtherTextBytes = 255; // of a catalog's name, a language, a type identifier
inline constexpr std::uint64_t maxPixels = std::uint64_t{64} << 20; // of one picture

// Variants in an open catalog. Model.h explains their members at Picture and Data.
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

    // The number of variants, at least 1. All parameters `variant` are below it.
    std::size_t variants() const noexcept;
    Fit fit(std::size_t variant) const noexcept;
    std::string_view language(std::size_t variant) const noexcept; // empty: for all languages
    // Whether any variant is for one language.
    bool isLocalized() const noexcept;
    // The index of the best variant for `wanted` and `languages` (BCP 47 tags, most preferred first). The language
    // decides first (languageDistance()), then the traits (distance()); Fit.h has both.
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
    // Opens the catalog at `path` and validates its whole index. Blobs are not validated. They are read later
    // from the open file, so a file that is renamed to `path` meanwhile does not matter. Errors: the file cannot be
    // read, is not a catalog of this version, exceeds a limit, or is damaged (the message says how).
    // If `bundle` is not empty, `path` is below that folder, and a link that leads out of it is an error, too.
    [[nodiscard]] static Runtime::Result<Catalog> open(const std::string& path, std::string_view bundle = {});
    // The same from memory, which must outlive the catalog and be aligned to 16 bytes.
    [[nodiscard]] static Runtime::Result<Catalog> read(std::span<const std::uint8_t> bytes);

    // The index of the asset with that kind and name (exact), or no value. A name is unique among the
    // assets of one kind; an image and a colour may have the same one. Never fails, allocates nothing.
    [[nodiscard]] std::optional<std::size_t> find(Kind kind, std::string_view name) const noexcept;

    // All assets, in an unspecified but reproducible order.
    std::size_t size() const noexcept;
    Entry operator[](std::size_t index) const noexcept; // below size()

private:
    using IndexBytes = std::unique_ptr<const std::uint8_t[]>;
    Catalog(IndexBytes bytes, const Format::Catalog* index, std::unique_ptr<const Blobs> blobs) noexcept
        : bytes_(std::move(bytes)), index_(index), blobs_(std::move(blobs)) {}

    IndexBytes bytes_; // null if the caller of read() owns them
    const Format::Catalog* index_;
    std::unique_ptr<const Blobs> blobs_;
};

} // namespace AssetCatalog
