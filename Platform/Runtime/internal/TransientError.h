// Runtime/internal/TransientError.h
// What is missing for the moment must not be taken for missing and kept so.
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
