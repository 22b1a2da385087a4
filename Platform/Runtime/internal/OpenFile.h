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

    std::size_t size() const noexcept { return size_; } // when it was opened
    // Puts what stands at `offset` at `out`. How much that was: less than `size` where the file ends.
    [[nodiscard]] Result<std::size_t> read(void* out, std::size_t size, std::uint64_t offset) const;
    // An error of this file.
    [[nodiscard]] Error error(std::string message) const { return {.message = std::move(message), .file = path_}; }

private:
    explicit OpenFile(std::string path) noexcept : path_(std::move(path)) {}

    Descriptor descriptor_{-1};
    std::size_t size_ = 0;
    std::string path_;
};

} // namespace Runtime
