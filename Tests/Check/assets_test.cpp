// Findings about assets, located at the entries of their sets.
#include "CheckedSource.h"
#include <gtest/gtest.h>

namespace {

using Support::CheckedSource;
using Support::Strings;

constexpr const char* drawing = R"(<svg xmlns="http://www.w3.org/2000/svg" width="8" height="8"/>)";

// The findings in a folder `set` with these entries and the drawing a.svg: "RULE:LINE:COLUMN  NAME", where the first
// entry is on line 2.
Strings findingsIn(const std::string& set, const std::string& entries) {
    const bool isColor = set.ends_with(".colorset");
    CheckedSource source{{"A.xcassets/" + set + "/Contents.json",
                          "{\"" + std::string(isColor ? "colors" : "images") + "\": [\n" + entries + "\n]}"},
                         {"A.xcassets/" + set + "/a.svg", drawing},
                         // With a dark variant, so that every colour of the catalog should have one.
                         {"A.xcassets/other.colorset/Contents.json",
                          R"({"colors": [{"color": {"platform": "ios", "reference": "systemRedColor"}}, {"color":
                             {"platform": "ios", "reference": "systemRedColor"}, "appearances": [{"appearance": "luminosity", "value": "dark"}]}]})"}};
    Strings found;
    for (const std::string& finding : source.findings())
        found.push_back(finding.substr(0, finding.find(' ')) +
                        finding.substr(finding.rfind(':', finding.rfind(':') - 1)));
    return found;
}

TEST(Check, FindsFaultsOfAssets) {
    const struct {
        int line;
        const char *set, *entries;
        Strings findings;
    } cases[] = {
        {__LINE__, "a.imageset", R"({"filename": "a.svg"})", {}},
        {__LINE__, "a.imageset", R"({"filename": "b.svg"})", {"asset-missing-file:2:1  a"}},
        {__LINE__,
         "a.imageset",
         "{\"filename\": \"a.svg\"},\n {\"filename\": \"a.svg\"}",
         {"asset-duplicate-variant:3:2  a"}},
        {__LINE__,
         "a.imageset",
         "{\"filename\": \"a.svg\"},\n {\"filename\": \"a.svg\", \"unassigned\": true}",
         {"asset-unassigned:3:2  a"}},
        {__LINE__, "a.imageset", "{\"filename\": }", {"unreadable-asset:2:14  a"}},
        {__LINE__, "a.imageset", R"({"filename": "../a.svg"})", {"unreadable-asset:2:1  a"}},
        // A missing file is one finding; its scale is not reported as missing as well.
        {__LINE__,
         "a.imageset",
         "{\"filename\": \"a.svg\"},\n{\"filename\": \"a@2x.png\", \"scale\": \"2x\"}",
         {"asset-missing-file:3:1  a"}},
        {__LINE__,
         "a.imageset",
         R"({"filename": "a.svg", "scale": "1x"}, {"scale": "2x"}, {"scale": "3x"})",
         {}}, // a vector drawing needs no bitmap beside it
        {__LINE__,
         "a.imageset",
         R"({"filename": "a.svg"}, {"appearances": [{"appearance": "luminosity", "value": "dark"}]})",
         {"asset-missing-dark:2:24  a"}},
        // A file that is not assigned does not fill the slot for dark mode.
        {__LINE__,
         "a.imageset",
         R"({"filename": "a.svg"}, {"appearances": [{"appearance": "luminosity", "value": "dark"}]},
            {"filename": "a.svg", "unassigned": true, "appearances": [{"appearance": "luminosity", "value": "dark"}]})",
         {"asset-missing-dark:2:24  a", "asset-unassigned:3:13  a"}},
        {__LINE__,
         "a.colorset",
         R"({"color": {"color-space": "srgb", "components": {"red": 1, "green": 1, "blue": 1, "alpha": 1}}})",
         {"asset-missing-dark:2:1  a"}},
        {__LINE__,
         "a.colorset",
         R"({"color": {"platform": "ios", "reference": "systemBlueColor"}})",
         {}}, // has its own dark variant
        {__LINE__, "a.colorset", R"({"color": {"components": {"red": "much"}}})", {"unreadable-asset:2:1  a"}},
        {__LINE__, "a.colorset", R"({"color": {"reference": "noColor"}})", {"unreadable-asset:2:1  a"}},
        {__LINE__, "--.imageset", R"({"filename": "a.svg"})", {"unnamed-key:1:1  --"}},
    };
    for (const auto& one : cases)
        EXPECT_EQ(findingsIn(one.set, one.entries), one.findings) << "line " << one.line;
}

} // namespace
