#include "Foundation/internal/LocaleCache.h"

#include <gtest/gtest.h>
#include <latch>
#include <thread>
#include <vector>

namespace {

using Cache = Foundation::detail::LocaleCache<std::string>;

std::string valueOf(std::string_view locale) {
    return "the value of the locale " + std::string(locale);
}

TEST(LocaleCache, GivesConcurrentThreadsTheSameValue) {
    constexpr std::size_t count = 8;
    static constinit Cache cache;
    std::latch ready(count);
    std::vector<std::vector<const std::string*>> seen(count, std::vector<const std::string*>(100));
    std::vector<std::jthread> threads;
    for (std::size_t i = 0; i < count; ++i)
        threads.emplace_back([&, i] {
            ready.arrive_and_wait();
            for (std::size_t n = 0; n < 100; ++n) {
                const std::size_t which = (i * 13 + n) % 100;
                const std::string locale = std::to_string(which);
                const auto kept = cache.get(locale, [&] { return valueOf(locale); });
                ASSERT_EQ(*kept, valueOf(locale));
                seen[i][which] = kept.get();
            }
        });
    threads.clear();
    for (const auto& values : seen)
        EXPECT_EQ(values, seen.front());
}

TEST(LocaleCache, IsBounded) {
    static constinit Cache cache;
    const auto isKept = [&](const std::string& locale) {
        const auto make = [&] { return valueOf(locale); };
        const auto value = cache.get(locale, make);
        EXPECT_EQ(*value, valueOf(locale));
        return value == cache.get(locale, make);
    };
    EXPECT_TRUE(isKept("de_AT"));
    EXPECT_FALSE(isKept(std::string(1'000, 'x'))); // too long
    int kept = 0;
    for (int i = 0; i < 2'000; ++i)
        kept += isKept(std::to_string(i)) ? 1 : 0;
    EXPECT_GT(kept, 100);
    EXPECT_LE(kept, 256); // as many as the cache has room for
    EXPECT_TRUE(isKept("de_AT"));
}

} // namespace
