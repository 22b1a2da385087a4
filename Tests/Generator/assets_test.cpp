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

TEST(AssetConstants, AreNamedByTheRule) {
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
        {__LINE__, "24h", "Media", "_24h"},
        {__LINE__, "icons/tab bar/home", "Media::Icons::TabBar", "home"},
    };
    for (const auto& one : cases) {
        SourceBundle::Diagnostics diagnostics;
        const auto source = assets({one.asset});
        const auto constants = Generator::constantsOf(source, diagnostics);
        ASSERT_EQ(constants.size(), 1U) << "line " << one.line;
        EXPECT_EQ(constants[0].groups, one.groups) << "line " << one.line;
        EXPECT_EQ(constants[0].name, one.name) << "line " << one.line;
    }
}

TEST(AssetConstants, ThatCannotBeAreReportedWithBothPaths) {
    const struct {
        int line;
        std::vector<const char*> names;
        const char* report;
    } cases[] = {
        {__LINE__,
         {"a_b", "a-b"},
         "Media.xcassets/a-b.imageset: gives the name aB, which Media.xcassets/a_b.imageset gives as well"},
        {__LINE__,
         {"Home", "Home/x"},
         "Media.xcassets/Home.imageset: gives the name Home, which a folder beside it gives as well"},
        {__LINE__, {"--"}, "Media.xcassets/--.imageset: gives no name: \"--\""},
    };
    for (const auto& one : cases) {
        SourceBundle::Diagnostics diagnostics;
        EXPECT_TRUE(
            Generator::generateAssets(assets(one.names), {.module = "App", .includes = {}}, diagnostics).empty());
        ASSERT_EQ(diagnostics.all().size(), 1U) << "line " << one.line;
        EXPECT_EQ(diagnostics.all()[0].what.text(), one.report) << "line " << one.line;
    }
}

TEST(AssetConstants, OfOneNameAreThereInEveryNamespace) {
    auto source = assets({"x", "x", "x"});
    source[1].path = "Media.xcassets/F/x.imageset";
    source[2].catalog = "More";
    SourceBundle::Diagnostics diagnostics;
    const auto constants = Generator::constantsOf(source, diagnostics);
    ASSERT_EQ(constants.size(), 2U);
    EXPECT_EQ(constants[0].groups + constants[1].groups, "MediaMore");
    ASSERT_EQ(diagnostics.all().size(), 1U);
    EXPECT_EQ(diagnostics.all()[0].severity, SourceBundle::Severity::warning);
    EXPECT_EQ(diagnostics.all()[0].what.text(),
              "Media.xcassets/F/x.imageset: has the name of Media.xcassets/x.imageset and is left out");
}

} // namespace
