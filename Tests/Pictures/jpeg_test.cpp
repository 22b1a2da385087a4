#include "Pictures/internal/Pictures.h"

#include "../Support/AddressSpaceLimit.h"
#include <algorithm>
#include <cstdio> // jpeglib.h needs it
#include <cstdlib>
#include <gtest/gtest.h>
#include <jpeglib.h>
#include <new>
#include <span>
#include <sys/resource.h>

namespace {

using Bytes = std::vector<std::uint8_t>;

constexpr std::uint32_t width = 21;
constexpr std::uint32_t height = 10;

struct PixelFormat {
    J_COLOR_SPACE space;
    std::array<std::uint8_t, 4> pixel; // the colour of all pixels, in that space
    bool progressive = false;
    bool adobe = false;
    std::span<const jpeg_scan_info> scans{}; // empty: the usual ones
    std::uint32_t rows = height;
};

Bytes write(const PixelFormat& format) {
    jpeg_compress_struct jpeg{};
    jpeg_error_mgr errors{};
    jpeg.err = jpeg_std_error(&errors);
    jpeg_create_compress(&jpeg);
    unsigned char* bytes = nullptr;
    unsigned long size = 0;
    jpeg_mem_dest(&jpeg, &bytes, &size);
    int channels = 4;
    if (format.space == JCS_GRAYSCALE)
        channels = 1;
    else if (format.space == JCS_RGB)
        channels = 3;
    jpeg.image_width = width;
    jpeg.image_height = format.rows;
    jpeg.input_components = channels;
    jpeg.in_color_space = format.space;
    jpeg_set_defaults(&jpeg);
    jpeg_set_quality(&jpeg, 100, TRUE);
    if (format.progressive)
        jpeg_simple_progression(&jpeg);
    if (!format.scans.empty()) {
        jpeg.scan_info = format.scans.data();
        jpeg.num_scans = static_cast<int>(format.scans.size());
    }
    jpeg.write_Adobe_marker = format.adobe ? TRUE : FALSE;
    jpeg_start_compress(&jpeg, TRUE);
    Bytes row;
    for (std::uint32_t x = 0; x < width; ++x)
        row.insert(row.end(), format.pixel.begin(), format.pixel.begin() + channels);
    JSAMPROW rows[] = {row.data()};
    while (jpeg.next_scanline < format.rows)
        jpeg_write_scanlines(&jpeg, rows, 1);
    jpeg_finish_compress(&jpeg);
    jpeg_destroy_compress(&jpeg);
    Bytes file(bytes, bytes + size);
    std::free(bytes);
    return file;
}

const PixelFormat colored{JCS_RGB, {200, 100, 50}};

TEST(Jpeg, EveryColorSpace) {
    struct Case {
        int line;
        PixelFormat format;
        std::array<int, 3> expected;
    };
    const Case cases[] = {
        {__LINE__, {JCS_GRAYSCALE, {77}}, {77, 77, 77}},
        {__LINE__, colored, {200, 100, 50}},
        {__LINE__, {.space = JCS_RGB, .pixel = {0, 255, 10}, .progressive = true}, {0, 255, 10}},
        // CMYK: 0 is no ink; the fourth ink, black, darkens the others.
        {__LINE__, {JCS_CMYK, {255, 0, 51, 0}}, {0, 255, 204}},
        {__LINE__, {JCS_CMYK, {0, 51, 255, 51}}, {204, 163, 0}},
        // Files with an Adobe marker store inverted inks.
        {__LINE__, {.space = JCS_CMYK, .pixel = {255, 204, 0, 204}, .progressive = true, .adobe = true}, {204, 163, 0}},
    };
    for (const Case& c : cases) {
        SCOPED_TRACE(c.line);
        auto decoded = Pictures::decode(write(c.format));
        ASSERT_TRUE(decoded) << decoded.error().message;
        ASSERT_EQ(decoded->width, width);
        ASSERT_EQ(decoded->height, height);
        ASSERT_EQ(decoded->pixels.size(), std::size_t{width} * height * 4);
        for (std::size_t i = 0; i < decoded->pixels.size(); ++i) {
            const int expected = i % 4 == 3 ? 255 : c.expected[i % 4];
            ASSERT_NEAR(decoded->pixels[i], expected, 2) << i;
        }
    }
}

TEST(Jpeg, MeasureFindsTheFrame) {
    Bytes file = write(colored);
    // A segment that contains something like a frame, and a fill byte before a marker.
    const Bytes segment = {0xFF, 0xE1, 0, 11, 0xFF, 0xC0, 0, 7, 8, 1, 1, 1, 1, 0xFF};
    file.insert(file.begin() + 2, segment.begin(), segment.end());
    const auto size = Pictures::measure(file);
    ASSERT_TRUE(size) << size.error().message;
    EXPECT_EQ(size->encoding, Pictures::Encoding::jpeg);
    EXPECT_EQ(size->width, width);
    EXPECT_EQ(size->height, height);
    EXPECT_TRUE(Pictures::decode(file));
    EXPECT_EQ(Pictures::decode(file, width * height - 1).error().message, "has more than 209 pixels");
}

TEST(Jpeg, ScansAreLimited) {
    const jpeg_scan_info scans[] = {{1, {0}, 0, 0, 0, 0}, {1, {0}, 1, 63, 0, 0}};
    const Bytes file = write({.space = JCS_GRAYSCALE, .pixel = {77}, .scans = scans});
    // The first scan has all bits of its coefficients, so a decoder accepts it any number of times.
    const auto isMarker = [](int byte, int next) { return byte == 0xFF && next != 0; };
    const Bytes scanMarker = {0xFF, 0xDA};
    const auto first = std::search(file.begin(), file.end(), scanMarker.begin(), scanMarker.end());
    const auto next = std::adjacent_find(first + 2, file.end(), isMarker);
    Bytes repeated = file;
    for (int count = 2; count < 200; ++count)
        repeated.insert(repeated.begin() + (next - file.begin()), first, next);
    EXPECT_TRUE(Pictures::decode(repeated));
    repeated.insert(repeated.begin() + (next - file.begin()), first, next);
    EXPECT_EQ(Pictures::decode(repeated).error().message, "is a damaged JPEG: more than 200 scans");
}

TEST(Jpeg, WithoutMemoryIsNotDamaged) {
#if defined(__SANITIZE_ADDRESS__) || defined(__SANITIZE_THREAD__)
    GTEST_SKIP() << "a sanitizer needs all addresses";
#endif
    const Bytes file = write({.space = JCS_RGB, .pixel = {200, 100, 50}, .progressive = true, .rows = 65'000});
    ASSERT_TRUE(Pictures::decode(file)); // loads the plug-in
    bool isDamaged = false;
    int failures = 0;
    for (rlim_t room = 0; room < (rlim_t{32} << 20); room += rlim_t{1} << 19) {
        try {
            const Support::AddressSpaceLimit limit(room);
            isDamaged |= !Pictures::decode(file);
        } catch (const std::bad_alloc&) {
            ++failures;
        }
    }
    EXPECT_FALSE(isDamaged);
    EXPECT_GT(failures, 0);
}

TEST(Jpeg, TruncationIsAnErrorAndDamageNeverACrash) {
    for (const bool progressive : {false, true}) {
        PixelFormat format = colored;
        format.progressive = progressive;
        const Bytes file = write(format);
        for (std::size_t length = 0; length < file.size(); ++length)
            EXPECT_FALSE(Pictures::decode(std::span(file).first(length))) << length;
        for (std::size_t place = 0; place < file.size(); ++place)
            for (const int change : {0x01, 0x20, 0x80, 0xFF}) {
                Bytes altered = file;
                altered[place] = static_cast<std::uint8_t>(altered[place] ^ change);
                const auto decoded = Pictures::decode(altered, 4096); // an altered size may be huge
                if (decoded) {
                    EXPECT_EQ(decoded->pixels.size(), std::size_t{decoded->width} * decoded->height * 4);
                }
            }
    }
}

} // namespace
