#include "UIKit/internal/PixelCache.h"

#include <gtest/gtest.h>
#include <vector>

namespace {

using UIKit::detail::PixelCache, UIKit::detail::Pixels;

PixelCache::Key key(std::uint64_t offset) {
    return {nullptr, offset, 1};
}

Pixels pixels(std::size_t bytes) {
    return std::make_shared<const Pictures::Bitmap>(Pictures::Bitmap{1, 1, std::vector<std::uint8_t>(bytes)});
}

TEST(PixelCache, KeepsTheMostRecentlyUsed) {
    PixelCache cache(100);
    for (const std::uint64_t i : {0U, 1U})
        cache.add(key(i), pixels(40));
    EXPECT_TRUE(cache.find(key(0))); // now more recently used than 1
    cache.add(key(2), pixels(40));
    EXPECT_TRUE(cache.find(key(0)));
    EXPECT_FALSE(cache.find(key(1)));
    EXPECT_TRUE(cache.find(key(2)));
    // Too large to be cached: it is not kept and does not evict the others.
    cache.add(key(3), pixels(101));
    EXPECT_FALSE(cache.find(key(3)));
    EXPECT_TRUE(cache.find(key(0)));
}

TEST(PixelCache, SharesPixelsInUse) {
    PixelCache cache(100);
    const Pixels held = cache.add(key(0), pixels(60));
    EXPECT_EQ(cache.add(key(0), pixels(60)), held); // a concurrent decode gets the first result
    cache.add(key(1), pixels(60));
    EXPECT_EQ(cache.find(key(0)), held); // evicted but alive; cached again
    EXPECT_FALSE(cache.find(key(1)));

    const Pixels large = cache.add(key(2), pixels(1000));
    EXPECT_EQ(cache.find(key(2)), large);
    EXPECT_EQ(cache.find(key(0)), held);
}

TEST(PixelCache, DropsExpiredSlots) {
    PixelCache cache(1000);
    for (std::uint64_t i = 0; i < 10000; ++i)
        cache.add(key(i), pixels(100));
    std::size_t alive = 0;
    for (std::uint64_t i = 0; i < 10000; ++i)
        alive += cache.find(key(i)) != nullptr ? 1U : 0U;
    EXPECT_EQ(alive, 10U);
}

} // namespace
