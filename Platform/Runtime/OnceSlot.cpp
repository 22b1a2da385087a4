#include "Runtime/OnceSlot.h"

#include <atomic>
#include <unistd.h>

namespace Runtime::detail {

bool OnceState::enter() noexcept {
    const std::atomic_ref state(state_);
    const std::uint32_t mine = static_cast<std::uint32_t>(::getpid()) << 1; // even, so it never equals `made`
    std::uint32_t seen = empty;
    while (!state.compare_exchange_strong(seen, mine, std::memory_order_acquire)) {
        if (seen == made)
            return false;
        if (seen != mine) // of a parent process, whose threads do not exist here: the next exchange replaces it
            continue;
        state.wait(mine, std::memory_order_acquire);
        seen = empty;
    }
    return true;
}

void OnceState::leave(bool isMade) noexcept {
    const std::atomic_ref state(state_);
    state.store(isMade ? made : empty, std::memory_order_release);
    state.notify_all();
}

} // namespace Runtime::detail
