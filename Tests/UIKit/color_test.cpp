#include "UIKit/UIKit.h"

#include "SampleBundle.h"
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
        const Sample::TraitsScope scope(
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

} // namespace
