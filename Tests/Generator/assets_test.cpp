#include "Generator/AssetsModel.h"
#include "Generator/Generator.h"

#include <gtest/gtest.h>

namespace {

using SourceBundle::SourceAsset;

std::vector<SourceAsset> assets(const std::vector<const char*>& names) {
    std::vector<SourceAsset> all;
    for (const char* name : names) {
        SourceAsset asset;
        asset.catalog = "Media";
        asset.name = name;
        asset.path = std::string("Media.xcassets/") + name + ".imageset";
        all.push_back(std::move(asset));
    }
    return all;
}

TEST(AssetConstants, HaveNames) {
    const struct {
        int line;
        const char *asset, *groups, *name;
    } cases[] = {
        {__LINE__, "calendar_arrow_icon", "Media", "calendarArrowIcon"},
        {__LINE__, "bubble_1", "Media", "bubble1"},
        {__LINE__, "star_big_", "Media", "starBig"},
        {__LINE__, "expand-06", "Media", "expand06"},
        {__LINE__, "boy_equipment.arab", "Media", "boyEquipmentArab"},
        {__LINE__, "action_messageoff", "Media", "actionMessageoff"},
        {__LINE__, "Brand Color", "Media", "BrandColor"},
        {__LINE__, "delete", "Media", "delete_"},
        {__LINE__, "EOF", "Media", "EOF_"},
        {__LINE__, "24h", "Media", "_24h"},
        {__LINE__, "icons/tab bar/home", "Media::Icons::TabBar", "home"},
    };
    for (const auto& one : cases) {
        SourceBundle::Diagnostics diagnostics;
        const auto source = assets({one.asset});
        const auto constants = Generator::assetTreeOf(source, diagnostics).constants;
        ASSERT_EQ(constants.size(), 1U) << "line " << one.line;
        EXPECT_EQ(constants[0].groups, one.groups) << "line " << one.line;
        EXPECT_EQ(constants[0].name, one.name) << "line " << one.line;
    }
}

TEST(AssetConstants, AreLeftOutWithAReason) {
    const struct {
        int line;
        std::vector<const char*> names;
        const char *kept, *report;
    } cases[] = {
        {__LINE__,
         {"a_b", "a-b"}, // the alphabet decides, not the order of the folders
         "a-b",
         "Media.xcassets/a_b.imageset: the asset \"a_b\" has no constant: the name Media::aB belongs to "
         "Media.xcassets/a-b.imageset"},
        {__LINE__,
         {"Home", "Home/x"},
         "Home",
         "Media.xcassets/Home/x.imageset: the asset \"Home/x\" has no constant: the name Media::Home belongs to "
         "Media.xcassets/Home.imageset"},
        {__LINE__,
         {"ok", "--"},
         "ok",
         "Media.xcassets/--.imageset: the asset \"--\" has no constant: its name has no letter or digit"},
    };
    for (const auto& one : cases) {
        SourceBundle::Diagnostics diagnostics;
        const auto source = assets(one.names);
        const auto tree = Generator::assetTreeOf(source, diagnostics);
        ASSERT_EQ(tree.constants.size(), 1U) << "line " << one.line;
        EXPECT_EQ(tree.constants[0].asset->name, one.kept) << "line " << one.line;
        ASSERT_EQ(tree.leftOut.size(), 1U) << "line " << one.line;
        ASSERT_EQ(diagnostics.count(SourceBundle::Severity::warning), 1U) << "line " << one.line;
        EXPECT_EQ(diagnostics.all()[0].what.text(), one.report) << "line " << one.line;
    }
    // The folder has no usable name and is dropped.
    SourceBundle::Diagnostics diagnostics;
    const auto source = assets({"--/x"});
    EXPECT_EQ(Generator::assetTreeOf(source, diagnostics).constants.at(0).groups, "Media");
}

TEST(AssetConstants, WithEqualNamesExistInEveryCatalog) {
    auto source = assets({"x", "x"});
    source[1].catalog = "More";
    SourceBundle::Diagnostics diagnostics;
    const auto constants = Generator::assetTreeOf(source, diagnostics).constants;
    ASSERT_EQ(constants.size(), 2U);
    EXPECT_EQ(constants[0].groups + constants[1].groups, "MediaMore");
}

} // namespace
