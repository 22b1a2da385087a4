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

// "file: doing: REASON". `doing` says what failed: "cannot be read". `cause`: the errno of the call.
[[nodiscard]] inline Error systemError(std::string file, const std::string& doing, int cause = errno) {
    return {.message = doing + ": " + std::strerror(cause), .file = std::move(file), .cause = cause};
}

} // namespace Runtime
