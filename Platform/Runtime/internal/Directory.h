// Runtime/internal/Directory.h
// Lists folders.
// Text: names are raw bytes. Threads: one at a time per directory.
#pragma once

#include <cerrno>
#include <dirent.h>
#include <memory>
#include <string>
#include <string_view>

namespace Runtime {

using Directory = std::unique_ptr<DIR, int (*)(DIR*)>;

// Null with errno set on failure.
[[nodiscard]] inline Directory openDirectory(const std::string& path) noexcept {
    return {::opendir(path.c_str()), &::closedir};
}

// Calls `use` with the name of each entry, also "." and "..". Returns 0, or the errno of a failure.
template <class Use> [[nodiscard]] int forEachEntry(const Directory& directory, Use use) {
    for (;;) {
        errno = 0; // readdir() returns null at the end and on failure; only errno tells them apart
        const dirent* const entry = ::readdir(directory.get());
        if (entry == nullptr)
            return errno;
        use(std::string_view(entry->d_name));
    }
}

} // namespace Runtime
