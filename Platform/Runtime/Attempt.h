// Runtime/Attempt.h
// Where the text path stops exceptions.
// Threads: any; no state.
#pragma once

#include <utility>

namespace Runtime {

// What `make()` gives, or `otherwise` where the process has run out of memory or descriptors.
template <class Make, class Value = decltype(std::declval<Make&>()())>
Value attempt(Make&& make, Value otherwise = {}) noexcept {
    try {
        return make();
    } catch (...) {
        return otherwise;
    }
}

} // namespace Runtime
