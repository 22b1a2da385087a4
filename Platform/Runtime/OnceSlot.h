// Runtime/OnceSlot.h
// A value that is created at its first use, exactly once, and kept until the process ends.
// Threads: any; the first one creates the value while others wait; later reads are one load and one branch. A child
// process that was forked during the creation creates the value itself. Ownership: the slot never destroys its value,
// so that no code runs at exit.
#pragma once

#include "Runtime/Export.h"
#include <atomic>
#include <cstddef> // std::byte
#include <cstdint>
#include <new> // placement, std::launder
#include <type_traits>
#include <unistd.h> // getpid

namespace Runtime {

template <class T> class OnceSlot {
public:
    // Constant-initialized: a static slot costs zeroed memory and no start-up code.
    constexpr OnceSlot() noexcept = default;
    OnceSlot(const OnceSlot&) = delete;
    OnceSlot& operator=(const OnceSlot&) = delete;

    bool isMade() const noexcept { return state_.load(std::memory_order_acquire) == made; }
    // The value. Requires isMade().
    const T& value() const noexcept { return *std::launder(reinterpret_cast<const T*>(storage_)); }
    // The value; calls `make()` if there is none yet. When `make` throws, the slot stays empty and the next call tries
    // again.
    template <class Make> const T& get(Make&& make) {
        if (!isMade()) [[unlikely]]
            fill<std::remove_cvref_t<Make>>(make);
        return value();
    }

private:
    // Any other state is the id of the process in which a thread is creating the value.
    static constexpr std::uint32_t empty = 0, made = 1;
    static std::uint32_t running() noexcept { return static_cast<std::uint32_t>(::getpid()) << 1; }

    // Takes `make` by value, so that the fast path does not have to spill it to the stack.
    template <class Make> [[gnu::noinline, gnu::cold]] void fill(Make make) {
        const std::uint32_t mine = running();
        std::uint32_t seen = empty;
        while (!state_.compare_exchange_strong(seen, mine, std::memory_order_acquire)) {
            if (seen == made)
                return;
            if (seen != mine) // a thread of the process that this one was forked from
                continue;
            state_.wait(mine, std::memory_order_acquire);
            seen = empty;
        }
        try {
            ::new (static_cast<void*>(storage_)) T(make());
        } catch (...) {
            leave(empty);
            throw;
        }
        leave(made);
    }
    void leave(std::uint32_t state) noexcept {
        state_.store(state, std::memory_order_release);
        state_.notify_all();
    }

    std::atomic<std::uint32_t> state_{empty};
    alignas(T) std::byte storage_[sizeof(T)]{}; // NOLINT(bugprone-sizeof-expression): T may be a pointer
};

} // namespace Runtime
