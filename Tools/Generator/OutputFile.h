// Generator/OutputFile.h
// Generated files, built in memory and written together.
// Text: contents UTF-8, paths relative to the folder they are written into. Threads: plain values.
#pragma once

#include "Runtime/internal/Result.h"
#include <filesystem>
#include <string>
#include <vector>

namespace Generator {

// The first line of every file says what it was generated from and that it must not be edited.
struct OutputFile {
    std::filesystem::path path;
    std::string content;
};

// Writes the files below `folder`, which is created if necessary. Each file is replaced atomically; unchanged files are
// not touched. Stale files of earlier runs are removed: other files that begin with the same first line and are in the
// folder of a written file or in one of `ownFolders` (relative to `folder`), to which earlier runs may have written.
[[nodiscard]] Runtime::Result<void> writeFiles(const std::filesystem::path& folder,
                                               const std::vector<OutputFile>& files,
                                               const std::vector<std::filesystem::path>& ownFolders = {});

} // namespace Generator
