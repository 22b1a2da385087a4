// Runtime/internal/ForkLock.h
// A lock that no forked child finds held for ever.
// Threads: any.
#pragma once

#include <atomic>
#include <cstdint>
#include <unistd.h> // getpid

namespace Runtime {

class ForkLock {
public:
    constexpr ForkLock() noexcept = default;
    ForkLock(const ForkLock&) = delete;
    ForkLock& operator=(const ForkLock&) = delete;

    // True when a thread held the lock that this process did not get when it was forked: what the lock guards is then as
    // that thread left it in the middle of its work.
    [[nodiscard]] bool lock() noexcept {
        const auto mine = static_cast<std::uint32_t>(::getpid());
        std::uint32_t seen = free;
        while (!owner_.compare_exchange_strong(seen, mine, std::memory_order_acquire)) {
            if (seen != mine) // the next exchange takes it over, or another thread has done so
                continue;
            owner_.wait(mine, std::memory_order_relaxed);
            seen = free;
        }
        return seen != free;
    }
    void unlock() noexcept {
        owner_.store(free, std::memory_order_release);
        owner_.notify_one();
    }

private:
    static constexpr std::uint32_t free = 0;

    std::atomic<std::uint32_t> owner_{free}; // the process of the thread that holds it
};

} // namespace Runtime
