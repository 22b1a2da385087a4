// Runtime/OnceSlot.h
// A value that is made at its first read, exactly once, and kept until the process ends.
// Threads: any thread may read first; the others wait for it, and later reads are one load and one test.
// Ownership: the slot owns its value and never destroys it, so that nothing runs when the process ends.
#pragma once

#include <atomic>
#include <cstddef> // std::byte
#include <cstdint>
#include <new> // placement, std::launder
#include <type_traits>

namespace Runtime {

template <class T> class OnceSlot {
public:
    // Constant: a static slot costs zeroed memory and no start-up work.
    constexpr OnceSlot() noexcept = default;
    OnceSlot(const OnceSlot&) = delete;
    OnceSlot& operator=(const OnceSlot&) = delete;

    // Whether somebody has made it.
    bool isMade() const noexcept { return state_.load(std::memory_order_acquire) == made; }
    // The value; only once isMade().
    const T& value() const noexcept { return *std::launder(reinterpret_cast<const T*>(storage_)); }
    // The value, made by `make()` if nobody has made it yet. An exception of `make` leaves the slot as it was, for the
    // next reader to try again.
    template <class Make> const T& get(Make&& make) {
        if (!isMade()) [[unlikely]]
            fill<std::remove_cvref_t<Make>>(make);
        return value();
    }

private:
    enum State : std::uint32_t { empty, running, made };

    // Takes `make` by value, so that a caller whose value is ready prepares nothing for it in memory.
    template <class Make> [[gnu::noinline, gnu::cold]] void fill(Make make) {
        for (;;) {
            std::uint32_t seen = empty;
            if (state_.compare_exchange_strong(seen, running, std::memory_order_acquire)) {
                try {
                    ::new (static_cast<void*>(storage_)) T(make());
                } catch (...) {
                    leave(empty);
                    throw;
                }
                return leave(made);
            }
            if (seen == made)
                return;
            state_.wait(running, std::memory_order_acquire);
        }
    }
    void leave(State state) noexcept {
        state_.store(state, std::memory_order_release);
        state_.notify_all();
    }

    std::atomic<std::uint32_t> state_{empty};
    alignas(T) std::byte storage_[sizeof(T)]{}; // NOLINT(bugprone-sizeof-expression): T may be a pointer
};

} // namespace Runtime
