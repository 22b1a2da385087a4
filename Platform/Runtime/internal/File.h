// Runtime/internal/File.h
// Reads and writes whole files.
// Text: paths are raw bytes. Threads: any. Errors name the path; those of system calls have the text of errno.
#pragma once

#include "Runtime/internal/Result.h"
#include <cstddef>
#include <string>
#include <string_view>

namespace Runtime {

// The bytes of the regular file at `path`; a file of more than `limit` bytes, a directory, a device or a pipe is an
// error. Never waits for the writer of a pipe. `folder`: as for OpenFile::open().
[[nodiscard]] Result<std::string> readFile(const std::string& path, std::size_t limit, std::string_view folder = {});

// With `synced` the new content is on the disk before it replaces the file, which takes longer; with `unsynced` a power
// failure may leave an empty file, even in place of an old one.
enum class WriteSafety { synced, unsynced };

// Replaces the file at `path` atomically: writes a temporary file beside it and renames that, so that readers see
// either the old file or the new one, and an interrupted write leaves the old one. The permissions are kept. A symbolic
// link is followed and its target replaced or created. A pipe or a device is written to directly. A path such as
// /dev/stdout, which names an open descriptor of this process, is written at the descriptor's offset; through a
// path that names a descriptor of another process, such as /proc/PID/fd/1, the open file is appended to.
[[nodiscard]] Result<void> writeFile(const std::string& path, std::string_view bytes,
                                     WriteSafety safety = WriteSafety::synced);

} // namespace Runtime
