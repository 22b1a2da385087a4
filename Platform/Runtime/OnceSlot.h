// Runtime/OnceSlot.h
// A value that is made at its first read, exactly once, and kept until the process ends.
// Threads: any thread may read first; the others wait for it, and later reads are one load and one test. A child
// process that was forked while another thread was making the value makes it anew. Ownership: the slot owns its value
// and never destroys it, so that nothing runs when the process ends.
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
    // Constant: a static slot costs zeroed memory and no start-up work.
    constexpr OnceSlot() noexcept = default;
    OnceSlot(const OnceSlot&) = delete;
    OnceSlot& operator=(const OnceSlot&) = delete;

    bool isMade() const noexcept { return state_.load(std::memory_order_acquire) == made; }
    // The value; only once isMade().
    const T& value() const noexcept { return *std::launder(reinterpret_cast<const T*>(storage_)); }
    // The value; made by `make()` if it is not there yet. When `make` throws, the slot stays empty and the next reader
    // tries again.
    template <class Make> const T& get(Make&& make) {
        if (!isMade()) [[unlikely]]
            fill<std::remove_cvref_t<Make>>(make);
        return value();
    }

private:
    // The states; any other is that of the process in which a thread makes the value.
    static constexpr std::uint32_t empty = 0, made = 1;
    static std::uint32_t running() noexcept { return static_cast<std::uint32_t>(::getpid()) << 1; }

    // Takes `make` by value, so that a caller whose value is ready prepares nothing for it in memory.
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
