// Runtime/internal/File.h
// Files read whole and written whole.
// Text: paths as the file system has them. Threads: any. Errors carry the path and the system's reason.
#pragma once

#include "Runtime/internal/Result.h"
#include <cstddef>
#include <string>
#include <string_view>

namespace Runtime {

// The bytes of the regular file at `path`, at most `limit` of them; a longer file, a directory or a device is an error.
// Never waits for a writer.
[[nodiscard]] Result<std::string> readFile(const std::string& path, std::size_t limit);

// Makes `path` hold exactly `bytes`: written to a temporary beside it and renamed, so that a reader sees the old file
// or the new one and an interrupted write leaves the old. A link stays, and what it leads to is replaced, or made; a
// pipe or a device is written to. A path that stands for an open descriptor, as /dev/stdout does, is written through
// it, behind what it has written, and one for a descriptor of another process to the end of the file.
// `safety`: whether the bytes are on the disk before the name is theirs, which costs a wait. Without, a machine that
// loses power may leave an empty file.
enum class WriteSafety { synced, unsynced };
[[nodiscard]] Result<void> writeFile(const std::string& path, std::string_view bytes,
                                                   WriteSafety safety = WriteSafety::synced);

} // namespace Runtime
