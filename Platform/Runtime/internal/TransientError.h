// Runtime/internal/TransientError.h
// Throws on transient errors (Error::isTransient), so that callers never cache the result of one.
// Threads: any; no state.
#pragma once

#include "Runtime/internal/Result.h"
#include <system_error>

namespace Runtime {

inline void throwIfTransient(const Error& error) {
    if (error.isTransient())
        throw std::system_error(error.cause, std::generic_category());
}

} // namespace Runtime
