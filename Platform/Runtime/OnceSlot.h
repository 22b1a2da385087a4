// Runtime/OnceSlot.h
// A value that is created at its first use, exactly once, and kept until the process ends.
// Threads: any; the first one creates the value while others wait; later reads are one load and one branch. A child
// process that was forked during the creation creates the value itself. Ownership: the slot never destroys its value,
// so that no code runs at exit.
#pragma once

#include "Runtime/Export.h"
#include <cstddef> // std::byte
#include <cstdint>
#include <new> // placement, std::launder
#include <type_traits>

namespace Runtime {

namespace detail {

// Whether a value exists, and which process is creating it.
class OnceState {
public:
    // A compiler's built-in function saves including <atomic>, which takes longer to compile than <string>.
    bool isMade() const noexcept { return __atomic_load_n(&state_, __ATOMIC_ACQUIRE) == made; }
    // Waits while another thread creates the value. False if the value exists; true if the caller must create it and
    // then call leave().
    LUMORA_EXPORT bool enter() noexcept;
    LUMORA_EXPORT void leave(bool isMade) noexcept;

private:
    // Any other state is twice the id of the process in which a thread is creating the value.
    static constexpr std::uint32_t empty = 0, made = 1;

    std::uint32_t state_ = empty;
};

} // namespace detail

template <class T> class OnceSlot {
public:
    // Constant-initialized: a static slot costs zeroed memory and no start-up code.
    constexpr OnceSlot() noexcept = default;
    OnceSlot(const OnceSlot&) = delete;
    OnceSlot& operator=(const OnceSlot&) = delete;

    bool isMade() const noexcept { return state_.isMade(); }
    // The value. Requires isMade().
    const T& value() const noexcept { return *std::launder(reinterpret_cast<const T*>(storage_)); }
    // The value; calls `make()`, which must not use this slot, if there is none yet. When `make` throws, the slot stays
    // empty and the next call tries again.
    template <class Make> const T& get(Make&& make) {
        if (!isMade()) [[unlikely]]
            fill<std::remove_cvref_t<Make>>(make);
        return value();
    }

private:
    // Takes `make` by value, so that the fast path does not have to spill it to the stack.
    template <class Make> [[gnu::noinline, gnu::cold]] void fill(Make make) {
        if (!state_.enter())
            return;
        try {
            ::new (static_cast<void*>(storage_)) T(make());
        } catch (...) {
            state_.leave(false);
            throw;
        }
        state_.leave(true);
    }

    detail::OnceState state_;
    alignas(T) std::byte storage_[sizeof(T)]{}; // NOLINT(bugprone-sizeof-expression): T may be a pointer
};

} // namespace Runtime
