#include "Pictures/internal/Pictures.h"

#include "PngFile.h"
#include <gtest/gtest.h>

namespace {

using PngFile::Bytes;

constexpr std::uint32_t width = 13; // not a multiple of 8, so rows end within a byte
constexpr std::uint32_t height = 9;

// A sample of `depth` bits. The pattern changes under shifts and swaps, so that decoding errors show.
unsigned sample(std::uint32_t x, std::uint32_t y, unsigned channel, int depth) {
    const unsigned value = (x * 7919 + y * 104729 + channel * 1299709 + 17) * 2654435761U;
    return (value >> 13) & ((1U << depth) - 1);
}

// All samples, packed as PNG packs them.
Bytes packed(unsigned channels, int depth) {
    Bytes rows;
    for (std::uint32_t y = 0; y < height; ++y) {
        unsigned pending = 0;
        int bits = 0;
        for (std::uint32_t x = 0; x < width; ++x)
            for (unsigned channel = 0; channel < channels; ++channel) {
                pending = pending << depth | sample(x, y, channel, depth);
                for (bits += depth; bits >= 8; bits -= 8)
                    rows.push_back(static_cast<std::uint8_t>(pending >> (bits - 8)));
            }
        if (bits > 0)
            rows.push_back(static_cast<std::uint8_t>(pending << (8 - bits)));
    }
    return rows;
}

std::uint8_t toByte(unsigned value, int depth) {
    return static_cast<std::uint8_t>(depth == 16 ? value >> 8 : value * 255 / ((1U << depth) - 1));
}

struct Case {
    int line;
    int colorType;
    int depth;
    bool hasTransparency;
};

TEST(Png, EveryColorTypeAndDepth) {
    const Case cases[] = {
        {__LINE__, PNG_COLOR_TYPE_GRAY, 1, false},       {__LINE__, PNG_COLOR_TYPE_GRAY, 2, false},
        {__LINE__, PNG_COLOR_TYPE_GRAY, 4, true},        {__LINE__, PNG_COLOR_TYPE_GRAY, 8, false},
        {__LINE__, PNG_COLOR_TYPE_GRAY, 8, true},        {__LINE__, PNG_COLOR_TYPE_GRAY, 16, false},
        {__LINE__, PNG_COLOR_TYPE_GRAY, 16, true},       {__LINE__, PNG_COLOR_TYPE_PALETTE, 1, false},
        {__LINE__, PNG_COLOR_TYPE_PALETTE, 2, true},     {__LINE__, PNG_COLOR_TYPE_PALETTE, 4, false},
        {__LINE__, PNG_COLOR_TYPE_PALETTE, 8, true},     {__LINE__, PNG_COLOR_TYPE_RGB, 8, false},
        {__LINE__, PNG_COLOR_TYPE_RGB, 8, true},         {__LINE__, PNG_COLOR_TYPE_RGB, 16, true},
        {__LINE__, PNG_COLOR_TYPE_GRAY_ALPHA, 8, false}, {__LINE__, PNG_COLOR_TYPE_GRAY_ALPHA, 16, false},
        {__LINE__, PNG_COLOR_TYPE_RGB_ALPHA, 8, false},  {__LINE__, PNG_COLOR_TYPE_RGB_ALPHA, 16, false},
    };
    for (const Case& c : cases)
        for (const bool interlaced : {false, true}) {
            SCOPED_TRACE(c.line);
            const bool isPalette = c.colorType == PNG_COLOR_TYPE_PALETTE;
            const bool isColor = (c.colorType & PNG_COLOR_MASK_COLOR) != 0 && !isPalette;
            const bool hasAlpha = (c.colorType & PNG_COLOR_MASK_ALPHA) != 0;
            const unsigned channels = (isColor ? 3U : 1U) + (hasAlpha ? 1U : 0U);

            // The transparent value: the sample, colour or palette entry of pixel (3, 2).
            const auto at = [&](unsigned channel) { return sample(3, 2, channel, c.depth); };
            png_color_16 transparent{};
            transparent.gray = transparent.red = static_cast<png_uint_16>(at(0));
            transparent.green = static_cast<png_uint_16>(at(1));
            transparent.blue = static_cast<png_uint_16>(at(2));
            PngFile::PixelFormat format{.colorType = c.colorType,
                                        .depth = c.depth,
                                        .interlaced = interlaced,
                                        .palette = {},
                                        .paletteAlpha = {}};
            if (isPalette) {
                for (unsigned i = 0; i < 1U << c.depth; ++i)
                    format.palette.push_back({static_cast<png_byte>(i * 3), static_cast<png_byte>(255 - i),
                                              static_cast<png_byte>(i * 5 + 1)});
                if (c.hasTransparency) {
                    format.paletteAlpha.assign(at(0) + 1, 255);
                    format.paletteAlpha.back() = 77;
                }
            } else if (c.hasTransparency) {
                format.transparent = &transparent;
            }

            auto decoded = Pictures::decode(PngFile::write(width, height, format, packed(channels, c.depth)));
            ASSERT_TRUE(decoded) << decoded.error().message;
            ASSERT_EQ(decoded->pixels.size(), std::size_t{width} * height * 4);
            const std::uint8_t* pixel = decoded->pixels.data();
            for (std::uint32_t y = 0; y < height; ++y)
                for (std::uint32_t x = 0; x < width; ++x, pixel += 4) {
                    const auto value = [&](unsigned channel) { return sample(x, y, channel, c.depth); };
                    std::array<unsigned, 4> expected{};
                    bool isTransparent = c.hasTransparency;
                    for (unsigned channel = 0; channel < 3; ++channel) {
                        const unsigned source = isColor ? channel : 0;
                        expected[channel] = toByte(value(source), c.depth);
                        isTransparent = isTransparent && value(source) == at(source);
                    }
                    if (isPalette)
                        expected = {value(0) * 3 & 255, 255 - value(0), (value(0) * 5 + 1) & 255, 0};
                    expected[3] = hasAlpha         ? toByte(value(channels - 1), c.depth)
                                  : !isTransparent ? 255U
                                  : isPalette      ? 77U
                                                   : 0U;
                    const std::array<unsigned, 4> got = {pixel[0], pixel[1], pixel[2], pixel[3]};
                    ASSERT_EQ(got, expected) << x << ',' << y;
                }
        }
}

TEST(Png, MeasureReadsTheHeadOnly) {
    const Bytes file = PngFile::plain(300, 2, 1, 2, 3, 4);
    const auto size = Pictures::measure(std::span(file).first(24));
    ASSERT_TRUE(size);
    EXPECT_EQ(size->encoding, Pictures::Encoding::png);
    EXPECT_EQ(size->width, 300U);
    EXPECT_EQ(size->height, 2U);
    EXPECT_FALSE(Pictures::measure(std::span(file).first(23)));
    EXPECT_EQ(Pictures::measure(Bytes{'G', 'I', 'F', '8'}).error().message, "is neither a PNG nor a JPEG file");
}

TEST(Png, PixelsAreLimited) {
    Bytes file = PngFile::plain(8, 8, 1, 2, 3, 4);
    EXPECT_TRUE(Pictures::decode(file, 64));
    EXPECT_EQ(Pictures::decode(file, 63).error().message, "has more than 63 pixels");
}

// In a file without ancillary chunks every changed or missing byte is detected.
TEST(Png, DamageIsAnError) {
    const Bytes file = PngFile::plain(5, 3, 200, 100, 50, 25);
    for (std::size_t length = 0; length < file.size(); ++length)
        EXPECT_FALSE(Pictures::decode(std::span(file).first(length))) << length;
    for (std::size_t place = 0; place < file.size(); ++place)
        for (const int change : {0x01, 0x20, 0x80}) {
            Bytes damaged = file;
            damaged[place] = static_cast<std::uint8_t>(damaged[place] ^ change);
            EXPECT_FALSE(Pictures::decode(damaged)) << place;
        }
}

// An ancillary chunk with a wrong checksum is skipped.
TEST(Png, TextWithAWrongChecksumIsTolerated) {
    Bytes file = PngFile::plain(2, 2, 9, 8, 7, 6);
    const Bytes text = {0, 0, 0, 3, 't', 'E', 'X', 't', 'a', 0, 'b', 1, 2, 3, 4};
    file.insert(file.begin() + 33, text.begin(), text.end()); // after the header
    const auto decoded = Pictures::decode(file);
    ASSERT_TRUE(decoded) << decoded.error().message;
    EXPECT_EQ(decoded->pixels[2], 7);
}

} // namespace
