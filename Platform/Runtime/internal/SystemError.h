// Runtime/internal/SystemError.h
// Errors of failed system calls.
// Threads: any; no state.
#pragma once

#include "Runtime/internal/Result.h"
#include <cerrno>
#include <cstring>
#include <string>
#include <utility>

namespace Runtime {

// The error "FILE: FAILURE: REASON". `failure` says what failed: "cannot be read". `cause`: the errno of the call.
[[nodiscard]] inline Error systemError(std::string file, const std::string& failure, int cause = errno) {
    return {.message = failure + ": " + std::strerror(cause), .file = std::move(file), .cause = cause};
}

} // namespace Runtime
