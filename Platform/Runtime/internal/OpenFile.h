// Runtime/internal/OpenFile.h
// A regular file that is read from, in parts or whole.
// Threads: any; parts may be read at the same time. No child program inherits it.
#pragma once

#include "Runtime/internal/Descriptor.h"
#include "Runtime/internal/Result.h"
#include <cstddef>
#include <cstdint>
#include <string>
#include <utility>

namespace Runtime {

class OpenFile {
public:
    // Opens the regular file at `path`. Errors name it: the system's reason, a directory or a device, more than `limit`
    // bytes. Never waits for a writer.
    [[nodiscard]] static Result<OpenFile> open(const std::string& path, std::size_t limit);

    std::size_t size() const noexcept { return identity_.size; } // when it was opened
    // What tells the file from one that takes its place, or from itself after a change.
    struct Identity {
        std::uint64_t device = 0, inode = 0;
        std::size_t size = 0;
        std::int64_t seconds = 0, nanoseconds = 0; // of the last change of its content
        friend bool operator==(const Identity&, const Identity&) = default;
    };
    const Identity& identity() const noexcept { return identity_; }
    // Puts what stands at `offset` at `out`. How much that was: less than `size` where the file ends.
    [[nodiscard]] Result<std::size_t> read(void* out, std::size_t size, std::uint64_t offset) const;
    // An error of this file.
    [[nodiscard]] Error error(std::string message) const { return {.message = std::move(message), .file = path_}; }

private:
    explicit OpenFile(std::string path) noexcept : path_(std::move(path)) {}

    Descriptor descriptor_{-1};
    Identity identity_;
    std::string path_;
};

} // namespace Runtime
