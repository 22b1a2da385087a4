#include "UIKit/UITraitCollection.h"

#include "SampleBundle.h"
#include "UIKit/UIImage.h"
#include <atomic>
#include <gtest/gtest.h>
#include <limits>
#include <thread>

namespace {

using namespace UIKit;

TEST(Traits, SetAsAWhole) {
    EXPECT_EQ(UITraitCollection::current(), UITraitCollection{});
    const UITraitCollection all{.userInterfaceStyle = UserInterfaceStyle::dark,
                                .accessibilityContrast = AccessibilityContrast::high,
                                .displayScale = 2.625,
                                .layoutDirection = LayoutDirection::rightToLeft};
    const Sample::TraitsScope scope(all);
    EXPECT_EQ(UITraitCollection::current(), all);
}

// The same rule applies to a scale in the current traits and in a lookup.
TEST(Traits, ScalesAreClamped) {
    const double infinity = std::numeric_limits<double>::infinity();
    const struct {
        int line;
        double given, taken; // `taken`: the result of `given` over a scale of 3; that is 3 if `given` is unspecified
        unsigned pixels;     // the side length of the variant
    } cases[] = {
        {__LINE__, 0, 3, 30},
        {__LINE__, -2, 3, 30},
        {__LINE__, -infinity, 3, 30},
        {__LINE__, std::numeric_limits<double>::quiet_NaN(), 3, 30},
        {__LINE__, 1, 1, 10},
        {__LINE__, 1000, 255, 30},
        {__LINE__, 1e9, 255, 30},
        {__LINE__, infinity, 255, 30},
        {__LINE__, 1e-300, 1 / 255.0, 10},
    };
    for (const auto& one : cases) {
        SCOPED_TRACE(one.line);
        const UITraitCollection given{.displayScale = one.given};
        EXPECT_EQ(given.over({.displayScale = 3}).displayScale, one.taken);
        EXPECT_EQ(UITraitCollection{}.over(given).displayScale, one.taken == 3 ? 0 : one.taken);
        const Sample::TraitsScope scope(given);
        // The current scale is kept in single precision.
        EXPECT_EQ(UITraitCollection::current().displayScale, one.taken == 3 ? 0 : static_cast<float>(one.taken));
        UITraitCollection::setCurrent({.displayScale = 3});
        const UIImage image = UIImage::imageNamed("send", Sample::bundle(), &given).value();
        EXPECT_EQ(image.pixelWidth(), one.pixels);
        EXPECT_EQ(image, image); // also for NaN
    }
}

TEST(Traits, UnspecifiedOnesComeFromTheArgument) {
    const UITraitCollection below{.userInterfaceStyle = UserInterfaceStyle::light, .displayScale = 3};
    EXPECT_EQ(UITraitCollection{}.over(below), below);
    EXPECT_EQ(Sample::dark.over(below),
              (UITraitCollection{.userInterfaceStyle = UserInterfaceStyle::dark, .displayScale = 3}));
}

// Readers see one of the two settings, never a mixture.
TEST(Traits, ChangeUnderReaders) {
    const UITraitCollection two[] = {
        {.userInterfaceStyle = UserInterfaceStyle::light, .displayScale = 1},
        {.userInterfaceStyle = UserInterfaceStyle::dark, .displayScale = 2},
    };
    const Sample::TraitsScope scope(two[0]);
    std::atomic<bool> isOver = false;
    std::thread writer([&] {
        for (int i = 0; i < 20000; ++i)
            UITraitCollection::setCurrent(two[i % 2]);
        isOver = true;
    });
    while (!isOver) {
        const UITraitCollection seen = UITraitCollection::current();
        ASSERT_TRUE(seen == two[0] || seen == two[1]);
    }
    writer.join();
}

} // namespace
