#include "UIKit/internal/PixelCache.h"

#include <gtest/gtest.h>
#include <vector>

namespace {

using UIKit::detail::PixelCache, UIKit::detail::Pixels;

Pixels pixels(std::size_t bytes) {
    return std::make_shared<const Pictures::Bitmap>(Pictures::Bitmap{1, 1, std::vector<std::uint8_t>(bytes)});
}

TEST(PixelCache, KeepsTheLastUsedWithinItsBound) {
    PixelCache cache(100);
    const char keys[4] = {};
    for (int i = 0; i < 2; ++i)
        cache.add(&keys[i], pixels(40));
    EXPECT_TRUE(cache.find(&keys[0])); // now used later than the second
    cache.add(&keys[2], pixels(40));
    EXPECT_TRUE(cache.find(&keys[0]));
    EXPECT_FALSE(cache.find(&keys[1]));
    EXPECT_TRUE(cache.find(&keys[2]));
    // Too large to be kept: it neither stays nor drives the others out.
    cache.add(&keys[3], pixels(101));
    EXPECT_FALSE(cache.find(&keys[3]));
    EXPECT_TRUE(cache.find(&keys[0]));
}

TEST(PixelCache, SharesWhatSomebodyHolds) {
    PixelCache cache(100);
    const char keys[3] = {};
    const Pixels held = cache.add(&keys[0], pixels(60));
    EXPECT_EQ(cache.add(&keys[0], pixels(60)), held); // whoever decodes at the same time gets the first one's
    cache.add(&keys[1], pixels(60));
    EXPECT_EQ(cache.find(&keys[0]), held); // let go, but alive; kept again
    EXPECT_FALSE(cache.find(&keys[1]));

    const Pixels large = cache.add(&keys[2], pixels(1000));
    EXPECT_EQ(cache.find(&keys[2]), large);
    EXPECT_EQ(cache.find(&keys[0]), held);
}

TEST(PixelCache, ForgetsWhatIsGone) {
    PixelCache cache(1000);
    std::vector<char> keys(10000);
    for (const char& key : keys)
        cache.add(&key, pixels(100));
    std::size_t alive = 0;
    for (const char& key : keys)
        alive += cache.find(&key) != nullptr ? 1U : 0U;
    EXPECT_EQ(alive, 10U);
}

} // namespace
