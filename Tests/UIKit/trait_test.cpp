#include "UIKit/UITraitCollection.h"

#include "SampleBundle.h"
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
    const Sample::Traits scope(all);
    EXPECT_EQ(UITraitCollection::current(), all);
    for (const double none : {0.0, -2.0, 1e300, std::numeric_limits<double>::quiet_NaN()}) {
        UITraitCollection::setCurrent({.displayScale = none});
        EXPECT_EQ(UITraitCollection::current(), UITraitCollection{});
    }
}

TEST(Traits, UnspecifiedOnesAreTakenFromBelow) {
    const UITraitCollection below{.userInterfaceStyle = UserInterfaceStyle::light, .displayScale = 3};
    EXPECT_EQ(UITraitCollection{}.over(below), below);
    EXPECT_EQ(Sample::dark.over(below),
              (UITraitCollection{.userInterfaceStyle = UserInterfaceStyle::dark, .displayScale = 3}));
}

// A reader sees one of the two settings, never a mixture.
TEST(Traits, ChangeUnderReaders) {
    const UITraitCollection two[] = {
        {.userInterfaceStyle = UserInterfaceStyle::light, .displayScale = 1},
        {.userInterfaceStyle = UserInterfaceStyle::dark, .displayScale = 2},
    };
    const Sample::Traits scope(two[0]);
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
