#include "AssetCatalog/internal/Catalog.h"

#include "../Support/TemporaryFolder.h"
#include "Sample.h"
#include "Walk.h"
#include <algorithm>
#include <cmath>
#include <filesystem>
#include <gtest/gtest.h>
#include <set>
#include <sys/stat.h>

namespace {

using namespace AssetCatalog;

template <class Bytes> std::vector<int> numbers(const Bytes& bytes) {
    return {bytes.begin(), bytes.end()};
}

TEST(Catalog, ReadsWhatWasBuilt) {
    const Support::TemporaryFolder folder;
    const std::string path = folder.write(fileName, build(Sample::assets())->bytes());
    auto opened = Catalog::open(path);
    ASSERT_TRUE(opened) << opened.error().text();
    const Catalog catalog = std::move(*opened); // a moved catalog can be read

    ASSERT_EQ(catalog.size(), 4U);
    const Entry image = catalog[*catalog.find(Kind::image, "send")];
    EXPECT_EQ(image.catalog(), "Images");
    EXPECT_EQ(image.name(), "send");
    EXPECT_EQ(image.rendering(), Rendering::asTemplate);
    EXPECT_FALSE(image.isLocalized());
    ASSERT_EQ(image.variants(), 2U);
    const PictureView dark = image.picture(image.best(Sample::darkTwice));
    EXPECT_EQ(dark.fit, Sample::darkTwice);
    EXPECT_EQ(dark.width, 6U);
    EXPECT_EQ(dark.height, 4U);
    EXPECT_EQ(dark.points, (Size{3, 2}));
    EXPECT_EQ(dark.capInsets, Insets{});
    EXPECT_EQ(numbers(*dark.blob.read()), (std::vector{1, 2, 3}));
    EXPECT_EQ(numbers(*image.picture(image.best({})).blob.read()), (std::vector{9}));

    const Entry star = catalog[*catalog.find(Kind::image, "folder/star_")];
    EXPECT_EQ(star.rendering(), Rendering::original);
    EXPECT_TRUE(star.isLocalized());
    const PictureView framed = star.picture(0);
    EXPECT_EQ(framed.resizing, Resizing::tile);
    EXPECT_EQ(framed.capInsets, (Insets{1, 2, 3, 4}));
    EXPECT_EQ(framed.alignmentInsets, (Insets{0.5, 0, -1, 0}));

    const Entry color = catalog[*catalog.find(Kind::color, "send")];
    const ColorValue wide = color.color(color.best({}));
    EXPECT_EQ(wide.space, ColorSpace::displayP3);
    EXPECT_EQ(wide.components, (std::array{0.25, -0.5, 1.5, 1.0}));
    EXPECT_EQ(color.color(color.best(Sample::darkTwice)).space, ColorSpace::gray);

    const Entry data = catalog[*catalog.find(Kind::data, "send")];
    EXPECT_EQ(data.data(0).typeIdentifier, "public.json");
    EXPECT_EQ(data.language(0), "fr");
    EXPECT_EQ(numbers(*data.data(0).blob.read()), (std::vector<int>{'{', '}'}));

    EXPECT_TRUE(catalog.find(Kind::image, "folder/star_"));
    for (const char* absent : {"", "Send", "sen", "send ", "folder/star", "star_"})
        EXPECT_FALSE(catalog.find(Kind::image, absent)) << absent;
    EXPECT_FALSE(catalog.find(Kind::color, "folder/star_"));

    EXPECT_EQ(Catalog::read(Walk::ExactAllocation(build({})->bytes()).span())->size(), 0U);
}

// The file is replaced and truncated while its catalog is open.
TEST(Catalog, OutlivesItsFile) {
    const Support::TemporaryFolder folder;
    const std::string path = folder.write(fileName, build(Sample::assets())->bytes());
    const auto catalog = Catalog::open(path);
    ASSERT_TRUE(catalog);
    const Blob blob = (*catalog)[*catalog->find(Kind::data, "send")].data(0).blob;

    std::filesystem::rename(path, path + ".old");
    folder.write(fileName, "another one");
    EXPECT_EQ(numbers(*blob.read()), (std::vector<int>{'{', '}'}));

    std::filesystem::resize_file(path + ".old", 5);
    EXPECT_EQ(blob.read().error().text(), path + ": was truncated after it was opened");
    EXPECT_EQ((*catalog)[*catalog->find(Kind::image, "send")].name(), "send");
}

TEST(Catalog, FindsEachOfManyAssets) {
    std::vector<Asset> assets;
    for (int i = 0; i < 5000; ++i)
        assets.push_back({.kind = Kind::color, .catalog = "C", .name = std::to_string(i), .colors = {{}}});
    const Walk::ExactAllocation bytes(build(assets)->bytes());
    auto catalog = Catalog::read(bytes.span());
    ASSERT_TRUE(catalog);
    std::set<std::size_t> found;
    for (const Asset& asset : assets)
        found.insert(catalog->find(Kind::color, asset.name).value());
    EXPECT_EQ(found.size(), assets.size());
}

TEST(Catalog, SameAssetsGiveTheSameBytes) {
    std::vector<Asset> assets = Sample::assets();
    const std::string bytes = build(assets)->bytes();
    std::ranges::reverse(assets);
    for (Asset& asset : assets)
        std::ranges::reverse(asset.colors);
    EXPECT_EQ(build(assets)->bytes(), bytes);

    // Of two variants for the same traits the first is used.
    assets = Sample::assets();
    assets[0].pictures.push_back({.fit = {}, .width = 9, .height = 9, .points = {9, 9}, .bytes = shared("7")});
    EXPECT_EQ(build(assets)->bytes(), bytes);
}

TEST(Catalog, BuilderRejectsWhatReadersReject) {
    struct Case {
        int line;
        void (*edit)(std::vector<Asset>&);
        const char* message;
    };
    const Case cases[] = {
        {__LINE__, [](auto& assets) { assets[1].name = "send"; }, "two assets of one kind are named \"send\""},
        {__LINE__, [](auto& assets) { assets[1].name = ""; }, "\"\" has an empty or too long name"},
        {__LINE__, [](auto& assets) { assets[1].pictures.clear(); }, "\"folder/star_\" has no variants or too many"},
        {__LINE__, [](auto& assets) { assets[1].pictures[0].width = 0; }, "picture with no pixels"},
        {__LINE__, [](auto& assets) { assets[1].pictures[0].bytes = shared(""); }, "picture with no pixels"},
        {__LINE__, [](auto& assets) { assets[1].pictures[0].points.height = 0; }, "invalid size in points"},
        {__LINE__, [](auto& assets) { assets[1].pictures[0].capInsets.left = HUGE_VAL; }, "invalid insets"},
        {__LINE__, [](auto& assets) { assets[1].catalog.resize(256); }, "in a catalog whose name is too long"},
        {__LINE__, [](auto& assets) { assets[3].data[0].typeIdentifier.resize(256); }, "type identifier is too long"},
        {__LINE__, [](auto& assets) { assets[1].pictures[0].width = (1U << 26) + 1; }, "no pixels or too many"},
        {__LINE__, [](auto& assets) { assets[1].rendering = Rendering{3}; }, "unknown rendering mode"},
        {__LINE__, [](auto& assets) { assets[2].colors[0].fit.direction = Direction{3}; },
         "invalid traits or language"},
        {__LINE__, [](auto& assets) { assets[2].colors[0].language.resize(256); }, "invalid traits or language"},
        {__LINE__, [](auto& assets) { assets[2].colors[0].value.components[3] = 1.5; }, "invalid components"},
        {__LINE__, [](auto& assets) { assets[2].colors[0].value.components[1] = std::nan(""); }, "invalid components"},
    };
    for (const Case& c : cases) {
        SCOPED_TRACE(c.line);
        std::vector<Asset> assets = Sample::assets();
        c.edit(assets);
        auto built = build(assets);
        ASSERT_FALSE(built);
        EXPECT_EQ(built.error().file, fileName);
        EXPECT_NE(built.error().message.find(c.message), std::string::npos) << built.error().message;
    }
}

TEST(Catalog, OpensRegularFilesOnly) {
    const Support::TemporaryFolder folder;
    ASSERT_EQ(::mkfifo((folder / "pipe").c_str(), 0600), 0);
    folder.write("empty", "");
    folder.write("other", "something else altogether");
    const std::pair<const char*, const char*> cases[] = {
        {"none", "cannot be read: No such file or directory"},
        {"", "is not a regular file"},
        {"pipe", "is not a regular file"},
        {"empty", "is not a compiled catalog"},
        {"other", "is not a compiled catalog"},
    };
    for (const auto& [name, message] : cases) {
        const std::string path = folder / name;
        EXPECT_EQ(Catalog::open(path).error().text(), path + ": " + message);
    }
}

} // namespace
