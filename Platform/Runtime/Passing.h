// Runtime/Passing.h
// What is missing for the moment must not be taken for missing and kept so.
// Threads: any; no state.
#pragma once

#include "Runtime/Result.h"
#include <system_error>

namespace Runtime {

inline void throwIfPassing(const Error& error) {
    if (error.isPassing())
        throw std::system_error(error.cause, std::generic_category());
}

} // namespace Runtime
