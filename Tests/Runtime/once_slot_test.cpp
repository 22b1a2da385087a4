#include "Runtime/OnceSlot.h"

#include <array>
#include <atomic>
#include <gtest/gtest.h>
#include <latch>
#include <stdexcept>
#include <string>
#include <thread>
#include <vector>

namespace {

using Runtime::OnceSlot;

TEST(OnceSlot, IsMadeOnceHoweverManyThreadsReadFirst) {
    constexpr int rounds = 50;
    constexpr int readers = 10;
    for (int round = 0; round < rounds; ++round) {
        OnceSlot<std::string> slot;
        std::atomic<int> made = 0;
        std::latch ready(readers);
        std::array<const std::string*, readers> seen{};
        std::vector<std::jthread> threads;
        for (auto& place : seen)
            threads.emplace_back([&] {
                ready.arrive_and_wait();
                place = &slot.get([&] {
                    made.fetch_add(1);
                    return std::string("a text that is too long to be held in place");
                });
            });
        threads.clear();
        EXPECT_EQ(made, 1);
        for (const std::string* text : seen) {
            EXPECT_EQ(text, seen[0]);
            EXPECT_EQ(*text, "a text that is too long to be held in place");
        }
        std::destroy_at(const_cast<std::string*>(seen[0])); // a OnceSlot never destroys its value
    }
}

TEST(OnceSlot, WaitersRetryAfterAFailure) {
    OnceSlot<int> slot;
    std::latch inside(1);
    std::jthread failing([&] {
        EXPECT_THROW(slot.get([&]() -> int {
            inside.count_down();
            std::this_thread::sleep_for(std::chrono::milliseconds(20)); // gives the other thread time to wait
            throw std::runtime_error("no");
        }),
                     std::runtime_error);
    });
    inside.wait();
    EXPECT_EQ(slot.get([] { return 7; }), 7);
    EXPECT_EQ(slot.get([] { return 8; }), 7);
}

} // namespace
