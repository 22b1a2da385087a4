// Tests/Pictures/PngFile.h
// Writes PNG files of all pixel formats with libpng.
#pragma once

#include <cstdint>
#include <memory>
#include <png.h>
#include <vector>

namespace PngFile {

using Bytes = std::vector<std::uint8_t>;

struct PixelFormat {
    int colorType = PNG_COLOR_TYPE_RGB_ALPHA;
    int depth = 8;
    bool interlaced = false;
    std::vector<png_color> palette;
    Bytes paletteAlpha;
    const png_color_16* transparent = nullptr; // the transparent gray value or colour
};

// `rows`: samples packed as in PNG; each row starts at a byte boundary.
inline Bytes write(std::uint32_t width, std::uint32_t height, const PixelFormat& format, Bytes rows) {
    Bytes file;
    png_structp png = png_create_write_struct(PNG_LIBPNG_VER_STRING, nullptr, nullptr, nullptr);
    png_infop info = png_create_info_struct(png);
    png_set_write_fn(
        png, &file,
        [](png_structp to, png_bytep bytes, std::size_t size) {
            auto* out = static_cast<Bytes*>(png_get_io_ptr(to));
            out->insert(out->end(), bytes, bytes + size);
        },
        nullptr);
    png_set_IHDR(png, info, width, height, format.depth, format.colorType,
                 format.interlaced ? PNG_INTERLACE_ADAM7 : PNG_INTERLACE_NONE, PNG_COMPRESSION_TYPE_DEFAULT,
                 PNG_FILTER_TYPE_DEFAULT);
    if (!format.palette.empty())
        png_set_PLTE(png, info, format.palette.data(), static_cast<int>(format.palette.size()));
    if (!format.paletteAlpha.empty() || format.transparent != nullptr)
        png_set_tRNS(png, info, format.paletteAlpha.data(), static_cast<int>(format.paletteAlpha.size()),
                     format.transparent);
    png_write_info(png, info);
    std::vector<png_bytep> pointers;
    for (std::size_t row = 0; row < height; ++row)
        pointers.push_back(rows.data() + row * png_get_rowbytes(png, info));
    png_write_image(png, pointers.data());
    png_write_end(png, info);
    png_destroy_write_struct(&png, &info);
    return file;
}

// A picture of one colour.
inline Bytes plain(std::uint32_t width, std::uint32_t height, std::uint8_t red, std::uint8_t green, std::uint8_t blue,
                   std::uint8_t alpha) {
    Bytes rows;
    for (std::size_t pixel = 0; pixel < std::size_t{width} * height; ++pixel)
        for (const std::uint8_t channel : {red, green, blue, alpha})
            rows.push_back(channel);
    return write(width, height, {}, rows);
}

} // namespace PngFile
