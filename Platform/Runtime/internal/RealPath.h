// Runtime/internal/RealPath.h
// Resolves symbolic links.
// Text: paths are raw bytes. Threads: any.
#pragma once

#include <cerrno>
#include <cstdlib>
#include <memory>
#include <new>
#include <string>

namespace Runtime {

// The absolute path of the existing file `path` with its links resolved. Empty with errno set on failure. Throws
// std::bad_alloc.
[[nodiscard]] inline std::string realPath(const std::string& path) {
    const std::unique_ptr<char, decltype(&std::free)> real(::realpath(path.c_str(), nullptr), &std::free);
    if (real == nullptr && errno == ENOMEM)
        throw std::bad_alloc();
    return real == nullptr ? std::string() : std::string(real.get());
}

} // namespace Runtime
