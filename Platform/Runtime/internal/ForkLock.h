// Runtime/internal/ForkLock.h
// A lock that a forked child can take over when a thread of its parent held it.
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

    // Takes the lock. Returns true when a thread of the parent process held it at the fork: what the lock guards may
    // then be half written.
    [[nodiscard]] bool lock() noexcept {
        const auto mine = static_cast<std::uint32_t>(::getpid());
        std::uint32_t seen = free;
        while (!owner_.compare_exchange_strong(seen, mine, std::memory_order_acquire)) {
            if (seen != mine) // held in the parent process: the next exchange takes the lock over
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

    std::atomic<std::uint32_t> owner_{free}; // the id of the process whose thread holds the lock
};

} // namespace Runtime
