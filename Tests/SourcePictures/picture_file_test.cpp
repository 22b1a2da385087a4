#include "SourcePictures/PictureFile.h"

#include "../Support/TemporaryFolder.h"
#include "Pictures/internal/Decoders.h"
#include "Pictures/internal/Pictures.h"
#include <cmath>
#include <gtest/gtest.h>
#include <thread>

namespace {

using AssetCatalog::Size;
using SourcePictures::check;
using SourcePictures::picturesOf;
using SourcePictures::Purpose;

std::string data(const char* name) {
    return Support::contents(std::string(LUMORA_PICTURES "/") + name);
}
std::string resource(const char* name) {
    return Support::contents(std::string(LUMORA_RESOURCES "/Images.xcassets/") + name);
}
std::string svg(const std::string& attributes, const std::string& content = "<path d=\"M0 0H9V9Z\"/>") {
    return "<svg xmlns=\"http://www.w3.org/2000/svg\" " + attributes + ">" + content + "</svg>";
}

std::vector<AssetCatalog::Picture> pictures(const std::string& bytes, const Purpose& purpose = {}) {
    auto made = picturesOf(AssetCatalog::shared(bytes), purpose);
    EXPECT_TRUE(made) << made.error().text();
    EXPECT_TRUE(check(bytes, purpose));
    return made ? *std::move(made) : std::vector<AssetCatalog::Picture>();
}

Pictures::Bitmap decoded(const AssetCatalog::Picture& picture) {
    const std::span bytes(reinterpret_cast<const std::uint8_t*>(picture.bytes->data()), picture.bytes->size());
    auto bitmap = Pictures::decode(bytes, 1 << 20, Pictures::linkedDecoders());
    EXPECT_TRUE(bitmap);
    return bitmap ? *std::move(bitmap) : Pictures::Bitmap();
}

// The colour of a pixel as 0xRRGGBBAA.
std::uint32_t pixel(const Pictures::Bitmap& bitmap, std::size_t x, std::size_t y) {
    std::uint32_t color = 0;
    for (std::size_t channel = 0; channel < 4; ++channel)
        color = color << 8 | bitmap.pixels.at((y * bitmap.width + x) * 4 + channel);
    return color;
}

TEST(PictureFile, KeepsPngAndJpegUnchanged) {
    for (const char* name :
         {"Food/banana.imageset/banana.png", "User/defaultCourseBoy.imageset/defaultCourseBoy.jpg"}) {
        const std::string bytes = resource(name);
        const auto made = pictures(bytes, {.scale = 2});
        ASSERT_EQ(made.size(), 1U) << name;
        EXPECT_EQ(*made[0].bytes, bytes) << name;
        EXPECT_EQ(made[0].fit.scale, 2) << name;
        EXPECT_EQ(made[0].points, (Size{made[0].width / 2.0, made[0].height / 2.0})) << name;
    }
}

TEST(PictureFile, ConvertsOtherRasterFormats) {
    for (const char* name : {"two-frames.gif", "plain.tiff", "plain.webp", "plain.heic"}) {
        const auto made = pictures(data(name));
        ASSERT_EQ(made.size(), 1U) << name;
        const Pictures::Bitmap bitmap = decoded(made[0]);
        EXPECT_EQ(bitmap.width, made[0].width) << name;
        EXPECT_EQ(bitmap.width, std::string(name) == "plain.heic" ? 16U : 3U) << name; // the HEIC file is larger
        // The first pixel of each file, in an animation that of the first frame, is (200, 30, 10).
        EXPECT_NEAR(bitmap.pixels[0], 200, 3) << name;
        EXPECT_NEAR(bitmap.pixels[1], 30, 3) << name;
        EXPECT_NEAR(bitmap.pixels[2], 10, 3) << name;
        EXPECT_FALSE(check(data(name).substr(0, 30), {})) << name;
    }
}

TEST(PictureFile, DrawsVectorsInTheirSize) {
    const struct {
        int line;
        std::string drawing;
        Size points;
    } cases[] = {
        {__LINE__, svg(R"(width="24" height="12")"), {24, 12}},
        {__LINE__, svg(R"(width="6.35mm" height=".25in")"), {24, 24}},
        {__LINE__, svg(R"(width="18pt" height="2pc")"), {24, 32}},
        {__LINE__, svg(R"(viewBox="0 0 24 12")"), {24, 12}},
        {__LINE__, svg(R"(width="48" viewBox="0 0 24 12")"), {48, 24}},
        {__LINE__, svg(R"(height="48" viewBox="0 0 24 12")"), {96, 48}},
        {__LINE__, svg(R"(width="100%" height="100%" viewBox="0 0 10 20")"), {10, 20}},
        {__LINE__, svg(R"(width="10.5" height="7.2")"), {10.5, 7.2}},
        // Without any size, the size of the content.
        {__LINE__, svg("", R"(<rect x="-5" y="3" width="30" height="20"/>)"), {30, 20}},
        {__LINE__, "<!-- a drawing -->" + std::string(5000, ' ') + svg(R"(width="24" height="12")"), {24, 12}},
        {__LINE__,
         "%PDF-1.4\n1 0 obj<</Pages 2 0 R>>endobj 2 0 obj<</Kids[3 0 R]/Count 1>>endobj "
         "3 0 obj<</Parent 2 0 R/MediaBox[0 0 30 20]>>endobj trailer<</Root 1 0 R>>\n%%EOF",
         {30, 20}},
    };
    for (const auto& one : cases) {
        const auto made = pictures(one.drawing);
        ASSERT_EQ(made.size(), 3U) << "line " << one.line;
        for (std::size_t i = 0; i < 3; ++i) {
            EXPECT_EQ(made[i].fit.scale, i + 1) << "line " << one.line;
            EXPECT_EQ(made[i].points, one.points) << "line " << one.line;
            EXPECT_EQ(made[i].width, std::ceil(one.points.width * made[i].fit.scale)) << "line " << one.line;
            EXPECT_EQ(made[i].height, std::ceil(one.points.height * made[i].fit.scale)) << "line " << one.line;
        }
    }
}

TEST(PictureFile, DrawsAllContentOfADrawingWithoutASize) {
    const auto made = pictures(svg("", R"(<rect x="-5" y="3" width="30" height="20" fill="#f00"/>)"));
    const Pictures::Bitmap bitmap = decoded(made[0]);
    EXPECT_EQ(pixel(bitmap, 0, 0), 0xFF0000FF);
    EXPECT_EQ(pixel(bitmap, 29, 19), 0xFF0000FF);
}

TEST(PictureFile, DrawsAVectorOfOneScaleForTheOthersIfItIsPreserved) {
    const std::string drawing = svg(R"(width="20" height="10")");
    const auto one = pictures(drawing, {.scale = 2});
    ASSERT_EQ(one.size(), 1U);
    EXPECT_EQ(one[0].width, 20U);
    EXPECT_EQ(one[0].points, (Size{10, 5}));
    const auto all = pictures(drawing, {.scale = 2, .preservesVector = true});
    ASSERT_EQ(all.size(), 3U);
    const std::pair<int, std::uint32_t> expected[] = {{2, 20}, {1, 10}, {3, 30}}; // scale and width
    for (std::size_t i = 0; i < 3; ++i) {
        EXPECT_EQ(all[i].fit.scale, expected[i].first);
        EXPECT_EQ(all[i].width, expected[i].second);
        EXPECT_EQ(all[i].points, (Size{10, 5}));
    }
}

TEST(PictureFile, DrawsTheRegularSymbolOfMediumSize) {
    const std::string guides = R"(<g id="Guides"><rect width="500" height="500" fill="#00f"/></g>)";
    const std::string symbols = R"(<g id="Black-M"><rect x="100" y="100" width="40" height="40"/></g>
        <g id="Regular-S"><rect x="200" y="200" width="12" height="9"/></g>
        <g id="Regular-M" transform='translate(250 300)'><rect x="1" y="2" width="18" height="15" fill="#0f0"/></g>)";
    const auto symbol = [&](const std::string& content) {
        return pictures(svg(R"(width="500" height="500")", guides + content), {.isSymbol = true});
    };
    const auto made = symbol(symbols);
    ASSERT_EQ(made.size(), 3U);
    EXPECT_EQ(made[1].points, (Size{18, 15}));
    EXPECT_EQ(made[1].width, 36U);
    EXPECT_EQ(pixel(decoded(made[0]), 17, 14), 0x00FF00FF);
    EXPECT_EQ(symbol(R"(<g id="Regular-S"><rect width="12" height="9"/></g>)")[0].points, (Size{12, 9}));
    EXPECT_EQ(symbol("")[0].points, (Size{500, 500}));
}

TEST(PictureFile, RejectsUnreadableFiles) {
    const std::string png = resource("Food/banana.imageset/banana.png");
    const std::string jpeg = resource("User/defaultCourseBoy.imageset/defaultCourseBoy.jpg");
    std::string spoiledPng = png; // damaged in the middle of its pixels
    spoiledPng[png.find("IDAT") + 20] ^= 0x55;
    std::string spoiledJpeg = jpeg;
    spoiledJpeg.replace(jpeg.size() / 2, 200, 200, '\x55');
    std::string flatGif = data("two-frames.gif");
    flatGif[32] = 0; // the height of the first frame
    // It draws a picture that is more than two thousand million points high.
    const std::string hugePdf =
        "%PDF-1.4\n1 0 obj<</Type/Catalog/Pages 2 0 R>>endobj\n2 0 obj<</Type/Pages/Kids[3 0 R]/Count 1>>endobj\n"
        "3 0 obj<</Type/Page/Parent 2 0 R/MediaBox[0 0 9 9]/Contents 4 0 R>>endobj\n4 0 obj<</Length 58>>stream\n"
        "5 2147483648 0 5 3 4 cm BI /W 1 /H 1 /BPC 8 /CS /G ID A EI\nendstream endobj\ntrailer<</Root 1 0 R>>\n";
    const struct {
        int line;
        std::string file, message;
    } cases[] = {
        {__LINE__, "no picture", "has an unknown format"},
        {__LINE__, "", "has an unknown format"},
        {__LINE__, "8BPS" + std::string("\0\1", 2) + std::string(40, '\0'), "has an unknown format"}, // PSD
        {__LINE__, png.substr(0, png.size() - 12), "is a damaged PNG"},
        {__LINE__, png.substr(0, png.size() / 2), "is a damaged PNG"},
        {__LINE__, spoiledPng, "is a damaged PNG"},
        {__LINE__, jpeg.substr(0, jpeg.size() / 2), "is a damaged JPEG"},
        {__LINE__, spoiledJpeg, "is a damaged JPEG"},
        {__LINE__, jpeg.substr(0, 10), "is a damaged JPEG"},
        {__LINE__, flatGif, "is a damaged gif picture"},
        {__LINE__, "<svg xmlns=\"http://www.w3.org/2000/svg\"><path", "is a damaged drawing"},
        {__LINE__, "<html/>", "is a damaged drawing"},
        {__LINE__, svg("", ""), "is a drawing without a size"},
        {__LINE__, svg(R"(width="0" height="5")"), "is a drawing without a size"},
        {__LINE__, svg(R"(width="20000" height="5000")"), "is a drawing with more pixels than a catalog may contain"},
        {__LINE__, svg(R"(width="20000" height="5")"), "is a drawing with a side of more than 32767 pixels"},
        {__LINE__, "%PDF-1.7 and no more", "is a damaged drawing"},
        {__LINE__, hugePdf, "cannot be drawn"},
    };
    for (const auto& one : cases) {
        const auto checked = check(one.file, {});
        ASSERT_FALSE(checked) << "line " << one.line;
        EXPECT_TRUE(checked.error().message.starts_with(one.message))
            << "line " << one.line << ": " << checked.error().message;
        EXPECT_EQ(checked.error().message.find('\n'), std::string::npos) << "line " << one.line;
    }
}

TEST(PictureFile, GivesTheSamePicturesInEveryThread) {
    const std::string files[] = {Support::contents(LUMORA_RESOURCES "/Images2.xcassets/card.imageset/card.pdf"),
                                 svg(R"(width="99" height="99")"), data("two-frames.gif"), data("plain.heic")};
    for (const std::string& file : files) {
        const auto expected = pictures(file);
        std::vector<std::jthread> threads;
        for (int i = 0; i < 4; ++i)
            threads.emplace_back([&] {
                for (int repetition = 0; repetition < 5; ++repetition) {
                    const auto made = picturesOf(AssetCatalog::shared(file), {});
                    if (!made || *made->back().bytes != *expected.back().bytes)
                        ADD_FAILURE();
                }
            });
    }
}

} // namespace
