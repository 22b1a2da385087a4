// AssetCatalog/internal/Model.h
// The content of a compiled catalog.
// Text: UTF-8. Threads: plain values.
#pragma once

#include <array>
#include <cstdint>
#include <memory>
#include <string>
#include <string_view>
#include <utility>
#include <vector>

namespace AssetCatalog {

enum class Kind : std::uint8_t { image, color, data };

// The traits that a variant is made for. `any` fits all.
enum class Appearance : std::uint8_t { any, light, dark };
enum class Contrast : std::uint8_t { any, high };
enum class Direction : std::uint8_t { any, leftToRight, rightToLeft };
struct Fit {
    Appearance appearance = Appearance::any;
    Contrast contrast = Contrast::any;
    Direction direction = Direction::any;
    std::uint8_t scale = 0; // pixels per point; 0 means any
    friend bool operator==(const Fit&, const Fit&) = default;
};

// How an image is drawn: as the context decides, in its own colours, or as a template in the current tint colour.
enum class Rendering : std::uint8_t { automatic, original, asTemplate };
// How the part of an image inside its cap insets fills a larger area.
enum class Resizing : std::uint8_t { stretch, tile };
enum class ColorSpace : std::uint8_t { srgb, extendedSrgb, displayP3, gray };

// "image", "color", "data".
[[nodiscard]] std::string_view nameOf(Kind kind) noexcept;
// The spelling in source catalogs: "srgb", "extended-srgb", "display-p3", "gray-gamma-22".
[[nodiscard]] std::string_view nameOf(ColorSpace space) noexcept;

// In points.
struct Size {
    double width = 0;
    double height = 0;
    friend bool operator==(const Size&, const Size&) = default;
};
struct Insets {
    double top = 0;
    double left = 0;
    double bottom = 0;
    double right = 0;
    friend bool operator==(const Insets&, const Insets&) = default;
};

// The content of a file, which several variants can share.
using Bytes = std::shared_ptr<const std::string>;
[[nodiscard]] inline Bytes shared(std::string bytes) {
    return std::make_shared<const std::string>(std::move(bytes));
}

// `language` is the BCP 47 tag of the language that a variant is for; empty means all.
struct Picture {
    Fit fit;
    std::string language{};
    std::uint32_t width = 0; // in pixels
    std::uint32_t height = 0;
    Size points{};
    Resizing resizing = Resizing::stretch;
    Insets capInsets{};       // the borders that keep their size when the picture is resized
    Insets alignmentInsets{}; // the borders that layout does not count as part of the picture
    Bytes bytes{};            // a PNG or JPEG file
};

struct ColorValue {
    ColorSpace space = ColorSpace::srgb;
    std::array<double, 4> components{}; // red, green, blue, alpha in `space`; gray: white, white, white, alpha
};
struct Color {
    Fit fit;
    std::string language{};
    ColorValue value{};
};

struct Data {
    Fit fit;
    std::string language{};
    std::string typeIdentifier{}; // such as "public.json"; may be empty
    Bytes bytes{};
};

// One asset with its variants; only the list for its kind is used. The name includes folders that provide a namespace:
// "folder/name".
struct Asset {
    Kind kind = Kind::image;
    std::string catalog; // "Images"
    std::string name;
    Rendering rendering = Rendering::automatic;
    std::vector<Picture> pictures{};
    std::vector<Color> colors{};
    std::vector<Data> data{};
};

} // namespace AssetCatalog
