#include "UIKit/UIKit.h"

#include "SampleBundle.h"
#include "UIKit/internal/ColorSpaces.h"
#include <cmath>
#include <gtest/gtest.h>

namespace {

using namespace UIKit;
using Sample::bundle;

TEST(UIColor, FixedComponentsAreUnchanged) {
    const UIColor color(2.5, -1, std::nan(""), 0.25);
    const RGBA rgba = color.rgba().value();
    EXPECT_EQ(rgba.red, 2.5);
    EXPECT_EQ(rgba.green, -1);
    EXPECT_TRUE(std::isnan(rgba.blue));
    EXPECT_EQ(rgba.alpha, 0.25);
    EXPECT_EQ(UIColor(1, 2, 3, 4), UIColor(1, 2, 3, 4));
    EXPECT_NE(UIColor(1, 2, 3, 4), UIColor(1, 2, 3, 5));
}

TEST(UIColor, NamedColorFollowsTheCurrentTraits) {
    const UIColor ink = UIColor::colorNamed("ink", bundle()).value();
    const UIColor darkInk = UIColor::colorNamed("ink", bundle(), &Sample::dark).value();
    const UIColor lightOnce = ink.resolved(UITraitCollection::current());
    const RGBA light{0.125, 0.25, 0.5, 1}, dark{0.875, 0.75, 0.5, 1}, white{1, 1, 1, 1};

    EXPECT_EQ(ink.rgba(), light);
    EXPECT_EQ(darkInk.rgba(), dark);
    EXPECT_EQ(ink.resolved(Sample::dark).rgba(), dark);
    {
        const Sample::Traits scope(
            {.userInterfaceStyle = UserInterfaceStyle::dark, .accessibilityContrast = AccessibilityContrast::high});
        EXPECT_EQ(ink.rgba(), white);
        EXPECT_EQ(darkInk.rgba(), white); // the contrast still follows the current traits
        EXPECT_EQ(lightOnce.rgba(), light);
    }
    EXPECT_EQ(ink.rgba(), light);

    EXPECT_EQ(ink, UIColor::colorNamed("ink", bundle()));
    EXPECT_NE(ink, darkInk);
    EXPECT_NE(ink, UIColor(0.125, 0.25, 0.5, 1));
    EXPECT_FALSE(UIColor::colorNamed("send", bundle()));
}

TEST(UIColor, PatternHasNoComponents) {
    const UIImage send = UIImage::imageNamed("send", bundle()).value();
    const UIColor pattern = UIColor::patternColor(send);
    EXPECT_FALSE(pattern.rgba());
    EXPECT_EQ(pattern, UIColor::patternColor(send));
    EXPECT_EQ(pattern.resolved(Sample::dark), pattern);
    EXPECT_EQ(*pattern.patternImage(), send);
    EXPECT_EQ(UIColor(0, 0, 0, 1).patternImage(), nullptr);
}

// Expected values were computed independently, the matrix with exact fractions from the chromaticities.
TEST(ColorSpaces, BecomeExtendedSrgb) {
    using AssetCatalog::ColorSpace;
    struct Case {
        int line;
        ColorSpace space;
        std::array<double, 4> from;
        std::array<double, 3> to;
    };
    const Case cases[] = {
        {__LINE__, ColorSpace::srgb, {0.1, 0.2, 0.3, 0.5}, {0.1, 0.2, 0.3}},
        {__LINE__, ColorSpace::extendedSrgb, {-0.5, 1.5, 0.3, 0.5}, {-0.5, 1.5, 0.3}},
        {__LINE__, ColorSpace::displayP3, {1, 0, 0, 0.5}, {1.093066362, -0.226741974, -0.150134581}},
        {__LINE__, ColorSpace::displayP3, {0, 1, 0, 0.5}, {-0.511604983, 1.018265658, -0.310674621}},
        {__LINE__, ColorSpace::displayP3, {1, 0.5, 0.25, 0.5}, {1.074044179, 0.462532911, 0.149127460}},
        {__LINE__, ColorSpace::displayP3, {0.02, 0.9, -0.3, 0.5}, {-0.455603285, 0.916502196, -0.413306560}},
        {__LINE__, ColorSpace::displayP3, {1, 1, 1, 0.5}, {1, 1, 1}},
        {__LINE__, ColorSpace::gray, {0.5, 0.5, 0.5, 0.5}, {0.503866782, 0.503866782, 0.503866782}},
        {__LINE__, ColorSpace::gray, {0.02, 0.02, 0.02, 0.5}, {0.002363353, 0.002363353, 0.002363353}},
        {__LINE__, ColorSpace::gray, {-0.25, -0.25, -0.25, 0.5}, {-0.241049365, -0.241049365, -0.241049365}},
    };
    for (const Case& c : cases) {
        SCOPED_TRACE(c.line);
        const RGBA got = detail::toExtendedSrgb({c.space, c.from});
        EXPECT_NEAR(got.red, c.to[0], 1e-8);
        EXPECT_NEAR(got.green, c.to[1], 1e-8);
        EXPECT_NEAR(got.blue, c.to[2], 1e-8);
        EXPECT_EQ(got.alpha, 0.5);
    }
}

} // namespace
