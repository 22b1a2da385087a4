// AssetCatalog/internal/Model.h
// What a compiled catalog holds, as its builder takes it and as its reader tells it.
// Text: UTF-8. Threads: plain values.
#pragma once

#include <array>
#include <cstdint>
#include <string>
#include <vector>

namespace AssetCatalog {

enum class Kind : std::uint8_t { image, color, data };

// What a variant was made for. `any` fits every reader.
enum class Appearance : std::uint8_t { any, light, dark };
enum class Contrast : std::uint8_t { any, high };
enum class Direction : std::uint8_t { any, leftToRight, rightToLeft };
struct Fit {
    Appearance appearance = Appearance::any;
    Contrast contrast = Contrast::any;
    Direction direction = Direction::any;
    std::uint8_t scale = 0; // pixels in a point; 0: any
    friend bool operator==(const Fit&, const Fit&) = default;
};

enum class Encoding : std::uint8_t { png, jpeg };
enum class ColorSpace : std::uint8_t { srgb, extendedSrgb, displayP3, gray };

struct Picture {
    Fit fit;
    Encoding encoding = Encoding::png;
    std::uint32_t width = 0; // in pixels
    std::uint32_t height = 0;
    std::vector<std::uint8_t> bytes; // the encoded file
};

struct ColorValue {
    Fit fit;
    ColorSpace space = ColorSpace::srgb;
    std::array<double, 4> components{}; // red, green, blue, alpha in `space`; grey: white, white, white, alpha
};

struct Data {
    Fit fit;
    std::string typeIdentifier; // "public.json", or empty
    std::vector<std::uint8_t> bytes;
};

// One asset with its variants; only the list of its kind is filled. A name in folders that provide a namespace is
// "folder/name".
struct Asset {
    Kind kind = Kind::image;
    std::string catalog; // "Images"
    std::string name;
    bool isTemplate = false; // drawn in the colour of its surroundings
    std::vector<Picture> pictures;
    std::vector<ColorValue> colors;
    std::vector<Data> data;
};

} // namespace AssetCatalog
