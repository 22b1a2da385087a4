// Runtime/Attempt.h
// Catches exceptions for callers that must not throw.
// Threads: any; no state.
#pragma once

#include "Runtime/Export.h"
#include <utility>

namespace Runtime {

// Returns `make()`, or `otherwise` when it throws. The platform throws only when memory or descriptors have run out or
// a device has failed, so the next call may succeed.
template <class Make, class Value = decltype(std::declval<Make&>()())>
Value attempt(Make&& make, Value otherwise = {}) noexcept {
    try {
        return make();
    } catch (...) {
        return otherwise;
    }
}

} // namespace Runtime
