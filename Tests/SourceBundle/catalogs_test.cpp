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
    // Every file counts as a valid picture, unless its content is "unreadable".
    std::vector<SourceAsset> read() {
        diagnostics = {};
        const std::filesystem::path folders[] = {folder.path()};
        return SourceBundle::sourceAssets(SourceBundle::findFiles(folders, diagnostics).catalogs, diagnostics,
                                          [](const SourceBundle::SetFile& file) -> Runtime::Result<void> {
                                              if (Support::contents(file.path) == "unreadable")
                                                  return Runtime::Error{.message = "is damaged", .file = file.path};
                                              return {};
                                          });
    }
    // "severity relative-path[:line:column]: message"
    std::vector<std::string> messages() {
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
    // Makes A.xcassets/p.imageset, the only set, with these entries and an empty file for each of the names.
    void imageSet(const std::string& entries, std::initializer_list<const char*> files) {
        std::filesystem::remove_all(folder / "A.xcassets");
        set("A.xcassets/p.imageset", R"({"images": [)" + entries + "]}");
        for (const char* file : files)
            folder.write("A.xcassets/p.imageset/" + std::string(file), "");
    }
    // The names of the files of the only asset.
    std::vector<std::string> files() {
        std::vector<std::string> names;
        for (const SourceAsset& asset : read())
            for (const auto& file : asset.files)
                names.push_back(file.path.filename());
        return names;
    }

    Support::TemporaryFolder folder;
    Diagnostics diagnostics;
};

using Lines = std::vector<std::string>;
// How messages about p.imageset begin: without a place, or with "LINE:COLUMN".
const std::string contents = "A.xcassets/p.imageset/Contents.json: ";
std::string at(const char* place) {
    return std::string("A.xcassets/p.imageset/Contents.json:") + place + ": ";
}

TEST_F(Catalogs, ReadSetsInFoldersWithAndWithoutANamespace) {
    const std::string one = R"({"data": [{"filename": "f", "universal-type-identifier": "public.text"}]})";
    set("A.xcassets/Plain/x.dataset", one);
    set("A.xcassets/Named", R"({"properties": {"provides-namespace": true}})");
    set("A.xcassets/Named/Deep/y.dataset", one);
    set("Deep/er/B.xcassets/v2.0", "{}"); // a folder with a dot in its name is not a set
    set("Deep/er/B.xcassets/v2.0/z.dataset", one);
    for (const char* set : {"A.xcassets/Plain/x", "A.xcassets/Named/Deep/y", "Deep/er/B.xcassets/v2.0/z"})
        folder.write(std::string(set) + ".dataset/f", "data");

    const auto assets = read();
    EXPECT_EQ(messages(), std::vector<std::string>());
    ASSERT_EQ(assets.size(), 3U);
    EXPECT_EQ(assets[0].name, "Named/y");
    EXPECT_EQ(assets[1].name, "x");
    EXPECT_EQ(assets[1].catalog, "A");
    EXPECT_EQ(assets[1].files[0].typeIdentifier, "public.text");
    EXPECT_EQ(assets[2].catalog, "B");
}

TEST_F(Catalogs, ReadTheTraitsOfPictures) {
    set("A.xcassets/p.imageset", R"({"images": [
        {"idiom": "universal", "scale": "1x", "filename": "1.png"},
        {"idiom": "universal", "scale": "2x", "filename": "2.png",
         "appearances": [{"appearance": "luminosity", "value": "dark"}, {"appearance": "contrast", "value": "high"}],
         "resizing": {"mode": "9-part", "center": {"mode": "tile", "width": 1, "height": 1},
                      "cap-insets": {"top": 2, "left": 4, "bottom": 6, "right": 8}},
         "alignment-insets": {"top": 1}},
        {"idiom": "universal", "scale": "3x"},
        {"idiom": "universal", "filename": "r.png", "language-direction": "right-to-left", "locale": "pt_BR"}],
        "properties": {"template-rendering-intent": "template", "preserves-vector-representation": true}})");
    for (const char* file : {"1", "2", "r"})
        folder.write("A.xcassets/p.imageset/" + std::string(file) + ".png", "");

    const auto assets = read();
    EXPECT_EQ(messages(), Lines());
    ASSERT_EQ(assets.size(), 1U);
    EXPECT_EQ(assets[0].rendering, Rendering::asTemplate);
    ASSERT_EQ(assets[0].files.size(), 3U);
    EXPECT_TRUE(assets[0].files[0].preservesVector);
    EXPECT_EQ(assets[0].files[0].fit, (Fit{.scale = 1}));
    EXPECT_EQ(assets[0].files[0].capInsets, Insets{});
    EXPECT_EQ(assets[0].files[1].fit, (Fit{.appearance = Appearance::dark, .contrast = Contrast::high, .scale = 2}));
    EXPECT_EQ(assets[0].files[1].capInsets, (Insets{1, 2, 3, 4})); // in points
    EXPECT_EQ(assets[0].files[1].alignmentInsets, (Insets{0.5, 0, 0, 0}));
    EXPECT_EQ(assets[0].files[1].resizing, Resizing::tile);
    EXPECT_EQ(assets[0].files[2].fit, (Fit{.direction = Direction::rightToLeft}));
    EXPECT_EQ(assets[0].files[2].language, "pt-BR");
}

TEST_F(Catalogs, UseThePicturesOfOneKindOfDevice) {
    const struct {
        int line;
        const char* entries;
        Lines files, messages;
    } cases[] = {
        {__LINE__,
         R"({"idiom": "ipad", "filename": "2"}, {"idiom": "universal", "subtype": "retina4", "filename": "3"},
            {"idiom": "universal", "filename": "1"})",
         {"1"},
         {"note " + at("1:13") +
              R"(entry 1 ("2") is for other devices (idiom "ipad") and is left out: the variants for idiom "universal" are used)",
          "note " + at("1:49") +
              R"(entry 2 ("3") is for other devices (idiom "universal", subtype "retina4") and is left out: the variants for idiom "universal" are used)"}},
        {__LINE__,
         R"({"idiom": "universal", "filename": "missing"}, {"idiom": "universal", "filename": ""},
            {"idiom": "ipad", "filename": "2"}, {"idiom": "iphone", "filename": "1"})",
         {"1"},
         {"warning " + at("1:13") + R"(entry 1 ("missing") is a file that does not exist and is left out)",
          "note " + at("2:13") +
              R"(entry 3 ("2") is for other devices (idiom "ipad") and is left out: the variants for idiom "iphone" are used)"}},
        // If there are no others, pictures with conditions are used: for watches, that for the widest screen.
        {__LINE__, R"({"idiom": "universal", "display-gamut": "display-P3", "filename": "1"})", {"1"}, {}},
        {__LINE__, R"({"idiom": "universal", "display-gamut": "sRGB", "filename": "1"})", {"1"}, {}},
        {__LINE__,
         R"({"idiom": "watch", "screen-width": "<=145", "scale": "2x", "filename": "1"},
            {"idiom": "watch", "screen-width": ">2147483647", "scale": "2x", "filename": "2"},
            {"idiom": "watch", "screen-width": ">161", "scale": "2x", "filename": "3"})",
         {"2"},
         {"note " + at("3:13") +
              R"(entry 3 ("3") is for other devices (idiom "watch", screen-width ">161") and is left out: the variants for idiom "watch", screen-width ">2147483647" are used)",
          "note " + at("1:13") +
              R"(entry 1 ("1") is for other devices (idiom "watch", screen-width "<=145") and is left out: the variants for idiom "watch", screen-width ">2147483647" are used)"}},
        // Scales that are not supported: such a picture is used only if there is no other.
        {__LINE__,
         R"({"scale": "10x", "filename": "1"}, {"scale": "2x", "filename": "2"}, {"scale": "2X", "filename": "3"})",
         {"2"},
         {"note " + at("1:13") +
              R"(entry 1 ("1") is for other devices (idiom "universal", scale "10x") and is left out: the variants for idiom "universal" are used)",
          "note " + at("1:82") +
              R"(entry 3 ("3") is for other devices (idiom "universal", scale "2X") and is left out: the variants for idiom "universal" are used)"}},
        {__LINE__, R"({"scale": "1.5x", "filename": "1"})", {"1"}, {}},
    };
    for (const auto& one : cases) {
        imageSet(one.entries, {"1", "2", "3"});
        EXPECT_EQ(files(), one.files) << "line " << one.line;
        EXPECT_EQ(messages(), one.messages) << "line " << one.line;
    }
}

TEST_F(Catalogs, ReportLeftOutEntriesOnce) {
    const struct {
        int line;
        const char* entries;
        Lines files, messages;
    } cases[] = {
        {__LINE__,
         R"({"filename": "1", "unassigned": true}, {"filename": "2"})",
         {"2"},
         {"note " + at("1:13") + R"(entry 1 ("1") is not assigned to any variant and is left out)"}},
        {__LINE__,
         R"({"filename": "1", "idiom": "é"}, {"filename": "2", "idiom": "é"}, {"filename": "3", "idiom": "é", "locale": "de"})",
         {"1", "3"},
         {"warning " + at("1:46") + R"(entry 2 ("2") is for the same traits as an earlier entry and is left out)"}},
        {__LINE__,
         R"({"filename": "1", "glow": 3}, {"filename": "2", "appearances": "dark", "scale": 2, "locale": "de"})",
         {"1", "2"},
         {"note " + contents + R"(entry 1 ("1") has the property "glow", which is ignored)",
          "note " + contents + R"(entry 2 ("2") has the property "appearances", which is ignored)",
          "note " + contents + R"(entry 2 ("2") has the property "scale", which is ignored)"}},
        {__LINE__,
         R"({"filename": 1}, {"filename": "2"})",
         {"2"},
         {"note " + contents + R"(entry 1 has the property "filename", which is ignored)"}},
        // The entries of these two cases close the list and add another member.
        {__LINE__,
         R"(], "images": {"1": {"filename": "1"}}, "data": [)",
         {},
         {"warning " + contents + R"(the member "images" appears again; the last one is used)",
          "warning A.xcassets/p.imageset: has no usable variant and is left out"}},
        {__LINE__,
         R"(], "images": [{"filename": "1"}, {"filename": "2"})",
         {"1"},
         {"warning " + contents + R"(the member "images" appears again; the last one is used)",
          "warning " + at("1:46") + R"(entry 2 ("2") is for the same traits as an earlier entry and is left out)"}},
        {__LINE__,
         R"({"filename": "missing"})",
         {},
         {"warning " + at("1:13") +
          R"(entry 1 ("missing") is a file that does not exist and is left out, and with it the set, which has no usable variant)"}},
        {__LINE__, R"({"scale": "1x"})", {}, {"warning A.xcassets/p.imageset: has no usable variant and is left out"}},
        {__LINE__,
         R"({"filename": "damaged"}, {"filename": "2", "scale": "2x"})",
         {"2"},
         {"warning A.xcassets/p.imageset/damaged: is damaged; it is left out"}},
    };
    for (const auto& one : cases) {
        imageSet(one.entries, {"1", "2", "3"});
        folder.write("A.xcassets/p.imageset/damaged", "unreadable");
        EXPECT_EQ(files(), one.files) << "line " << one.line;
        EXPECT_EQ(messages(), one.messages) << "line " << one.line;
    }
}

// A compiled catalog limits the length of names and, to 1024, the variants of an asset; an entry becomes at most four.
TEST_F(Catalogs, LeaveOutVariantsBeyondLimits) {
    const std::string german = R"({"filename": "1", "locale": "de)";
    std::string entries;
    for (int i = 0; i < 258; ++i)
        entries += german + std::to_string(i) + "\"},\n";
    imageSet(entries + german + std::string(300, 'e') + "\"}", {"1"});
    EXPECT_EQ(files().size(), 256U);
    EXPECT_EQ(messages(),
              (Lines{"warning " + at("257:1") + R"(entry 257 ("1") is left out: a set has at most 256 variants)",
                     "warning " + at("258:1") + R"(entry 258 ("1") is left out: a set has at most 256 variants)",
                     "warning " + at("259:1") +
                         R"(entry 259 ("1") has a language or type identifier that is too long and is left out)"}));
}

TEST_F(Catalogs, ReadSymbolsAsImages) {
    set("A.xcassets/s.symbolset", R"({"symbols": [{"idiom": "universal", "filename": "s.svg"}]})");
    folder.write("A.xcassets/s.symbolset/s.svg", "");
    const auto assets = read();
    ASSERT_EQ(assets.size(), 1U);
    EXPECT_EQ(assets[0].kind, Kind::image);
    EXPECT_EQ(assets[0].rendering, Rendering::asTemplate);
    EXPECT_TRUE(assets[0].files[0].isSymbol);
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
         R"("color-space": "gray-gamma-22", "components": {"white": "0.3", "alpha": "0x01"})",
         ColorSpace::gray,
         {0.3, 0.3, 0.3, 1 / 255.0}},
        {__LINE__,
         R"("color-space": "srgb", "components": {"red": 1, "green": 0.5, "blue": 2, "alpha": 1})",
         ColorSpace::srgb,
         {1, 0.5, 2, 1}}, // JSON numbers are fractions
    };
    for (const auto& one : cases) {
        set("A.xcassets/c.colorset",
            std::string(R"({"colors": [{"idiom": "universal", "color": {)") + one.color + "}}]}");
        const auto assets = read();
        ASSERT_EQ(assets.size(), 1U) << "line " << one.line;
        const ColorValue& value = assets[0].colors[0].value;
        EXPECT_EQ(value.space, one.space) << "line " << one.line;
        for (std::size_t i = 0; i < 4; ++i)
            EXPECT_DOUBLE_EQ(value.components[i], one.components[i]) << "line " << one.line;
    }
}

TEST_F(Catalogs, KnowSystemColorsForLightAndDark) {
    const auto colors = [&](const std::string& entries) {
        set("A.xcassets/c.colorset", R"({"colors": [)" + entries + "]}");
        const auto assets = read();
        return assets.empty() ? std::vector<Color>() : assets[0].colors;
    };
    const std::string reference = R"({"color": {"platform": "ios", "reference": "systemRedColor"})";
    const auto both = colors(reference + "}");
    ASSERT_EQ(both.size(), 2U);
    EXPECT_EQ(both[0].value.components, (std::array{1.0, 59 / 255.0, 48 / 255.0, 1.0}));
    EXPECT_EQ(both[1].fit.appearance, Appearance::dark);
    EXPECT_EQ(both[1].value.components, (std::array{1.0, 69 / 255.0, 58 / 255.0, 1.0}));
    // A dark colour defined by the set takes precedence.
    const std::string dark = R"("appearances": [{"appearance": "luminosity", "value": "dark"}])";
    const auto own =
        colors(reference + "}, {" + dark + R"(, "color": {"components": {"red": 0, "green": 0, "blue": 0}}})");
    ASSERT_EQ(own.size(), 2U);
    EXPECT_EQ(own[1].value.components, (std::array{0.0, 0.0, 0.0, 1.0}));
    EXPECT_EQ(colors(reference + ", " + dark + "}").at(0).value.components[1], 69 / 255.0);
    EXPECT_EQ(messages(), Lines());
}

TEST_F(Catalogs, LeaveOutInvalidSets) {
    const std::string withSet = ", and with it the set, which has no usable variant";
    const struct {
        int line;
        const char *set, *contents;
        std::string report;
    } cases[] = {
        {__LINE__, "a.imageset", "{\n  \"images\" : [ ?",
         "warning A.xcassets/a.imageset/Contents.json:2:16: invalid JSON: unexpected token; the set is left out"},
        {__LINE__, "a.imageset", "[]",
         "warning A.xcassets/a.imageset/Contents.json:1:1: is not a JSON object; the set is left out"},
        {__LINE__, "a.imageset", R"({"images": [{"filename": "../../secret"}]})",
         R"(warning A.xcassets/a.imageset/Contents.json:1:13: entry 1 ("../../secret") is a file outside of its set and is left out)" +
             withSet},
        {__LINE__, "a.imageset", R"({"images": [{"filename": "/etc/passwd"}]})",
         R"(warning A.xcassets/a.imageset/Contents.json:1:13: entry 1 ("/etc/passwd") is a file outside of its set and is left out)" +
             withSet},
        {__LINE__, "a.imageset", R"({"images": [{"filename": "link"}]})",
         R"(warning A.xcassets/a.imageset/Contents.json:1:13: entry 1 ("link") is a link, which is not followed, and is left out)" +
             withSet},
        {__LINE__, "a.colorset", R"({"colors": [{"color": {"platform": "ios", "reference": "noColor"}}]})",
         R"(warning A.xcassets/a.colorset/Contents.json:1:13: entry 1 is the unknown system colour "noColor" and is left out)" +
             withSet},
        {__LINE__, "a.colorset", R"({"colors": [{"color": {"components": {"red": "much"}}}]})",
         R"(warning A.xcassets/a.colorset/Contents.json:1:13: entry 1 has no valid colour component "red": "much" and is left out)" +
             withSet},
        {__LINE__, "a.colorset", R"({"colors": [{"color": {"components": {"red": "1", "green": "1"}}}]})",
         R"(warning A.xcassets/a.colorset/Contents.json:1:13: entry 1 has no valid colour component "blue" and is left out)" +
             withSet},
        {__LINE__, "a.colorset", R"({"colors": [{"color": {"components": {"red": 255}}}]})",
         R"(warning A.xcassets/a.colorset/Contents.json:1:13: entry 1 has no valid colour component "red": "255" and is left out)" +
             withSet},
        {__LINE__, "a.colorset", R"({"colors": [{"color": {"components": {"red": "0xFFFFFFFF"}}}]})",
         R"(warning A.xcassets/a.colorset/Contents.json:1:13: entry 1 has no valid colour component "red": "0xFFFFFFFF" and is left out)" +
             withSet},
        {__LINE__, "a.colorset", R"({"colors": [{"color": {"color-space": "cmyk", "components": {}}}]})",
         R"(warning A.xcassets/a.colorset/Contents.json:1:13: entry 1 has the unknown colour space "cmyk" and is left out)" +
             withSet},
        {__LINE__, "a.appiconset", "{}",
         "note A.xcassets/a.appiconset: is a set of an unsupported kind and is left out"},
        {__LINE__, "a.ImageSet", "{}", "warning A.xcassets/a.ImageSet: is left out: its extension must be .imageset"},
    };
    for (const auto& one : cases) {
        const std::string set = std::string("A.xcassets/") + one.set;
        folder.write(set + "/Contents.json", one.contents);
        std::filesystem::create_symlink("/etc/passwd", folder / (set + "/link"));
        EXPECT_EQ(read().size(), 0U) << "line " << one.line;
        EXPECT_EQ(messages(), Lines{one.report}) << "line " << one.line;
        std::filesystem::remove_all(folder / "A.xcassets");
    }
    // The JSON library copies and writes values recursively, so deep ones are rejected.
    const std::string deep(1'000'000, '[');
    set("A.xcassets/a.imageset", R"({"properties": )" + deep + std::string(deep.size(), ']') + "}");
    EXPECT_TRUE(read().empty());
    EXPECT_EQ(messages(), Lines{"warning A.xcassets/a.imageset/Contents.json: has JSON that is nested too deeply; the "
                                "set is left out"});
    std::filesystem::remove_all(folder / "A.xcassets");
    set("A.xcassets/Named", "{");
    EXPECT_TRUE(read().empty());
    EXPECT_EQ(messages(),
              Lines{"warning A.xcassets/Named/Contents.json:1:2: invalid JSON: unexpected token; the folder "
                    "does not provide a namespace"});
    // A system call would end the name at the NUL; here it is invalid.
    imageSet(R"({"filename": "Contents.json\u0000.png"})", {});
    EXPECT_TRUE(read().empty());
    EXPECT_EQ(messages().size(), 1U);
    // A link that leads out of the source is not read, and its content is not shown.
    std::filesystem::remove(folder / "A.xcassets/p.imageset/Contents.json");
    std::filesystem::create_symlink("/etc/passwd", folder / "A.xcassets/p.imageset/Contents.json");
    EXPECT_TRUE(read().empty());
    EXPECT_EQ(messages(), Lines{"warning " + contents + "is a link, which is not followed; the set is left out"});
}

TEST_F(Catalogs, KeepAssetsWithEqualNamesTheOuterFirst) {
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
    EXPECT_EQ(messages(), std::vector<std::string>());
}

} // namespace
