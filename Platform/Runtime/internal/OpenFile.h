// Runtime/internal/OpenFile.h
// A regular file opened for reading.
// Threads: any; concurrent reads are allowed. Child programs do not inherit the descriptor.
#pragma once

#include "Runtime/internal/Descriptor.h"
#include "Runtime/internal/Result.h"
#include <cstddef>
#include <cstdint>
#include <string>
#include <string_view>
#include <utility>

namespace Runtime {

class OpenFile {
public:
    // Opens the regular file at `path`. Errors, which name the file: a system call failed, or the file is not
    // regular or has more than `limit` bytes. Never blocks on a pipe.
    // If `folder` is not empty, a link on the path that leads out of the folder is an error, too; the caller guarantees
    // that `path` begins with `folder` and has no ".." after that.
    [[nodiscard]] static Result<OpenFile> open(const std::string& path, std::size_t limit,
                                               std::string_view folder = {});
    // Succeeds if there is a file or folder of any kind at `path` and it is inside `folder`, as for open().
    [[nodiscard]] static Result<void> exists(const std::string& path, std::string_view folder);

    std::size_t size() const noexcept { return identity_.size; } // at the time of opening
    // Differs for another file, and after a change of the size or the time of modification.
    struct Identity {
        std::uint64_t device = 0, inode = 0;
        std::size_t size = 0;
        std::int64_t seconds = 0, nanoseconds = 0; // of the last modification
        friend bool operator==(const Identity&, const Identity&) = default;
    };
    const Identity& identity() const noexcept { return identity_; }
    // Reads up to `size` bytes at `offset` into `out`. Returns how many, fewer than `size` only at the end of the file.
    [[nodiscard]] Result<std::size_t> read(void* out, std::size_t size, std::uint64_t offset) const;
    // An Error that names this file.
    [[nodiscard]] Error error(std::string message) const { return {.message = std::move(message), .file = path_}; }

private:
    explicit OpenFile(std::string path) noexcept : path_(std::move(path)) {}

    Descriptor descriptor_{-1};
    Identity identity_;
    std::string path_;
};

} // namespace Runtime
