// Runtime/internal/File.h
// Reads and writes whole files.
// Text: paths are raw bytes. Threads: any. Errors carry the path and the errno text.
#pragma once

#include "Runtime/internal/Result.h"
#include <cstddef>
#include <string>
#include <string_view>

namespace Runtime {

// The bytes of the regular file at `path`, at most `limit` of them; a longer file, a directory or a device is an error.
// Never waits for a writer. `folder`: as for OpenFile::open().
[[nodiscard]] Result<std::string> readFile(const std::string& path, std::size_t limit, std::string_view folder = {});

// Replaces the content of `path` atomically: writes a temporary file beside it and renames it, so that readers see
// either the old file or the new one, and an interrupted write leaves the old one. A symbolic link is followed and its
// target replaced or created. A pipe or a device is written to directly. A path such as /dev/stdout, which names an
// open descriptor of this process, is written at the descriptor's offset; one of another process is appended to.
// `safety`: with `synced` the data reaches the disk before the rename, which takes longer; with `unsynced` a power
// failure may leave an empty file.
enum class WriteSafety { synced, unsynced };
[[nodiscard]] Result<void> writeFile(const std::string& path, std::string_view bytes,
                                     WriteSafety safety = WriteSafety::synced);

} // namespace Runtime
