// Runtime/Attempt.h
// Catches exceptions for callers that must not throw.
// Threads: any; no state.
#pragma once

#include "Runtime/Export.h"
#include <utility>

namespace Runtime {

// Returns `make()`, or `otherwise` when that throws. The platform throws only std::bad_alloc, and std::system_error on
// transient errors, such as too many open files, so the next call may succeed.
template <class Make, class Value = decltype(std::declval<Make&>()())>
Value attempt(Make&& make, Value otherwise = {}) noexcept {
    try {
        return make();
    } catch (...) {
        return otherwise;
    }
}

} // namespace Runtime
