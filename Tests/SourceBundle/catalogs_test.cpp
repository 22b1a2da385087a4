#include "SourceBundle/Catalogs.h"
#include "SourceBundle/SourceFiles.h"

#include "../Support/TemporaryFolder.h"
#include <gtest/gtest.h>

namespace {

using namespace AssetCatalog;
using SourceBundle::Diagnostics;
using SourceBundle::SourceAsset;

class Catalogs : public ::testing::Test {
protected:
    std::vector<SourceAsset> read() {
        const std::filesystem::path folders[] = {folder.path()};
        return SourceBundle::sourceAssets(SourceBundle::findFiles(folders, diagnostics).catalogs, diagnostics);
    }
    // "severity path-below-the-folder[:line:column]: message"
    std::vector<std::string> said() {
        static constexpr const char* words[] = {"note ", "warning ", "error "};
        std::vector<std::string> lines;
        for (const auto& one : diagnostics.all()) {
            Runtime::Error what = one.what;
            what.file = std::filesystem::path(what.file).lexically_relative(folder.path());
            lines.push_back(words[static_cast<int>(one.severity)] + what.text());
        }
        return lines;
    }
    void set(const std::string& path, const std::string& contents) { folder.write(path + "/Contents.json", contents); }

    Support::TemporaryFolder folder;
    Diagnostics diagnostics;
};

TEST_F(Catalogs, ReadSetsInFoldersWithAndWithoutANamespace) {
    const std::string one = R"({"data": [{"filename": "f", "universal-type-identifier": "public.text"}]})";
    set("A.xcassets/Plain/x.dataset", one);
    set("A.xcassets/Named", R"({"properties": {"provides-namespace": true}})");
    set("A.xcassets/Named/Deep/y.dataset", one);
    set("B.xcassets/v2.0", "{}"); // a dot in the name makes no set of a folder
    set("B.xcassets/v2.0/z.dataset", one);
    for (const char* set : {"A.xcassets/Plain/x", "A.xcassets/Named/Deep/y", "B.xcassets/v2.0/z"})
        folder.write(std::string(set) + ".dataset/f", "data");

    const auto assets = read();
    EXPECT_EQ(said(), std::vector<std::string>());
    ASSERT_EQ(assets.size(), 3U);
    EXPECT_EQ(assets[0].name, "Named/y");
    EXPECT_EQ(assets[1].name, "x");
    EXPECT_EQ(assets[1].catalog, "A");
    EXPECT_EQ(assets[1].files[0].typeIdentifier, "public.text");
    EXPECT_EQ(assets[2].catalog, "B");
}

TEST_F(Catalogs, TellWhatEachPictureIsFor) {
    set("A.xcassets/p.imageset", R"({"images": [
        {"idiom": "universal", "scale": "1x", "filename": "1.png"},
        {"idiom": "universal", "scale": "2x", "filename": "2.png",
         "appearances": [{"appearance": "luminosity", "value": "dark"}, {"appearance": "contrast", "value": "high"}]},
        {"idiom": "universal", "scale": "3x"},
        {"idiom": "universal", "filename": "r.png", "language-direction": "right-to-left"},
        {"idiom": "ipad", "scale": "1x", "filename": "1.png"},
        {"idiom": "universal", "subtype": "retina4", "filename": "1.png"}],
        "properties": {"template-rendering-intent": "template"}})");
    for (const char* file : {"1", "2", "r"})
        folder.write("A.xcassets/p.imageset/" + std::string(file) + ".png", "");

    const auto assets = read();
    ASSERT_EQ(assets.size(), 1U);
    EXPECT_TRUE(assets[0].isTemplate);
    ASSERT_EQ(assets[0].files.size(), 3U);
    EXPECT_EQ(assets[0].files[0].fit, (Fit{.scale = 1}));
    EXPECT_EQ(assets[0].files[1].fit, (Fit{.appearance = Appearance::dark, .contrast = Contrast::high, .scale = 2}));
    EXPECT_EQ(assets[0].files[2].fit, (Fit{.direction = Direction::rightToLeft}));
    EXPECT_EQ(said().size(), 2U); // the iPad's and the small phone's
}

TEST_F(Catalogs, TakeAnotherDevicesPicturesWhereTheFirstHasNone) {
    set("A.xcassets/p.imageset", R"({"images": [
        {"idiom": "universal", "filename": "missing.png"}, {"idiom": "universal", "filename": ""},
        {"idiom": "ipad", "filename": "2.png"}, {"idiom": "iphone", "filename": "1.png"}]})");
    folder.write("A.xcassets/p.imageset/1.png", "");
    folder.write("A.xcassets/p.imageset/2.png", "");
    const auto assets = read();
    ASSERT_EQ(assets.size(), 1U);
    ASSERT_EQ(assets[0].files.size(), 1U);
    EXPECT_EQ(assets[0].files[0].path.filename(), "1.png");
}

TEST_F(Catalogs, ReadColorsInEveryNotation) {
    const struct {
        int line;
        const char* color;
        ColorSpace space;
        std::array<double, 4> components;
    } cases[] = {
        {__LINE__,
         R"("color-space": "srgb", "components": {"red": "0.500", "green": "1.000", "blue": "-0.25", "alpha": "0.750"})",
         ColorSpace::srgb,
         {0.5, 1, -0.25, 0.75}},
        {__LINE__,
         R"("color-space": "display-p3", "components": {"red": "255", "green": "51", "blue": "1", "alpha": "1"})",
         ColorSpace::displayP3,
         {1, 0.2, 1 / 255.0, 1}},
        {__LINE__,
         R"("color-space": "extended-srgb", "components": {"red": "0xFF", "green": "0x33", "blue": "0x0"})",
         ColorSpace::extendedSrgb,
         {1, 0.2, 0, 1}},
        {__LINE__,
         R"("color-space": "gray-gamma-22", "components": {"white": "0.3", "alpha": 0.5})",
         ColorSpace::gray,
         {0.3, 0.3, 0.3, 0.5}},
        {__LINE__,
         R"("color-space": "srgb", "components": {"red": 1, "green": 0, "blue": 51, "alpha": 1})",
         ColorSpace::srgb,
         {1, 0, 0.2, 1}},
    };
    for (const auto& one : cases) {
        set("A.xcassets/c.colorset",
            std::string(R"({"colors": [{"idiom": "universal", "color": {)") + one.color + "}}]}");
        const auto assets = read();
        ASSERT_EQ(assets.size(), 1U) << "line " << one.line;
        EXPECT_EQ(assets[0].colors[0].space, one.space) << "line " << one.line;
        for (std::size_t i = 0; i < 4; ++i)
            EXPECT_DOUBLE_EQ(assets[0].colors[0].components[i], one.components[i]) << "line " << one.line;
    }
}

TEST_F(Catalogs, ReportWhatIsWrongWithItsPath) {
    const struct {
        int line;
        const char *set, *contents, *report;
    } cases[] = {
        {__LINE__, "a.imageset", "{\n  \"images\" : [ ?",
         "error A.xcassets/a.imageset/Contents.json:2:16: is no JSON: something else was expected here"},
        {__LINE__, "a.imageset", "[]", "error A.xcassets/a.imageset/Contents.json:1:1: is no JSON object"},
        {__LINE__, "a.imageset", R"({"images": [{"filename": "no.png"}]})",
         "warning A.xcassets/a.imageset/no.png: is missing"},
        {__LINE__, "a.imageset", R"({"images": [{"filename": "../../secret"}]})",
         "error A.xcassets/a.imageset/Contents.json: names a file outside of its set: \"../../secret\""},
        {__LINE__, "a.imageset", R"({"images": [{"filename": "/etc/passwd"}]})",
         "error A.xcassets/a.imageset/Contents.json: names a file outside of its set: \"/etc/passwd\""},
        {__LINE__, "a.imageset", R"({"images": [{"filename": "Contents.json\u0000.png"}]})",
         "error A.xcassets/a.imageset/Contents.json: names a file with a zero in its name"},
        {__LINE__, "a.imageset", R"({"images": [{"filename": "link"}]})",
         "error A.xcassets/a.imageset/link: is a link; a set holds its files itself"},
        {__LINE__, "a.colorset", R"({"colors": [{"color": {"platform": "ios", "reference": "systemRedColor"}}]})",
         "warning A.xcassets/a.colorset/Contents.json: refers to a colour of the system, which is not supported: "
         "systemRedColor"},
        {__LINE__, "a.colorset", R"({"colors": [{"color": {"color-space": "srgb", "components": {"red": "much"}}}]})",
         "error A.xcassets/a.colorset/Contents.json: has no readable colour component \"red\": \"much\""},
        {__LINE__, "a.colorset", R"({"colors": [{"color": {"components": {"red": "1", "green": "1"}}}]})",
         "error A.xcassets/a.colorset/Contents.json: has no readable colour component \"blue\""},
        {__LINE__, "a.colorset", R"({"colors": [{"color": {"color-space": "cmyk", "components": {}}}]})",
         "warning A.xcassets/a.colorset/Contents.json: has a colour space that is not supported: cmyk"},
        {__LINE__, "a.appiconset", "{}", "note A.xcassets/a.appiconset: is a set of another kind, which is left out"},
    };
    for (const auto& one : cases) {
        const std::string set = std::string("A.xcassets/") + one.set;
        folder.write(set + "/Contents.json", one.contents);
        std::filesystem::create_symlink("/etc/passwd", folder / (set + "/link"));
        diagnostics = {};
        EXPECT_EQ(read().size(), 0U) << "line " << one.line;
        ASSERT_FALSE(said().empty()) << "line " << one.line;
        EXPECT_EQ(said()[0], one.report) << "line " << one.line;
        EXPECT_TRUE(said().size() == 1 || said()[0].starts_with("warning ")) << "line " << one.line;
        std::filesystem::remove_all(folder / "A.xcassets");
    }
}

TEST_F(Catalogs, KeepAssetsOfOneNameTheOuterFirst) {
    const std::string paths[] = {"A.xcassets/x.dataset", "A.xcassets/F/x.dataset", "B.xcassets/F/x.dataset"};
    for (const std::string& path : paths) {
        set(path, R"({"data": [{"filename": "f"}]})");
        folder.write(path + "/f", "");
    }
    const auto assets = read();
    ASSERT_EQ(assets.size(), 3U);
    for (std::size_t i = 0; i < 3; ++i) {
        EXPECT_EQ(assets[i].path, folder / paths[i]);
        EXPECT_EQ(assets[i].name, "x");
    }
    EXPECT_EQ(said(), std::vector<std::string>());
}

} // namespace
