// Generator/OutputFile.h
// Generated files, made whole in memory and written together.
// Text: contents UTF-8, paths relative to the folder they are written into. Threads: plain values.
#pragma once

#include "Runtime/internal/Result.h"
#include <filesystem>
#include <string>
#include <vector>

namespace Generator {

// The first line of every content says what the file was made from and that it is not to be edited.
struct OutputFile {
    std::filesystem::path path;
    std::string content;
};

// Writes the files below `folder`, which is made if need be. Each replaces its predecessor at once; a file that has its
// content already is not touched. Files of an earlier run that are no longer made are removed: those beside the new
// ones and in `own`, more folders below `folder`, that begin with the same first line.
[[nodiscard]] Runtime::Result<void> writeFiles(const std::filesystem::path& folder,
                                               const std::vector<OutputFile>& files,
                                               const std::vector<std::filesystem::path>& own = {});

} // namespace Generator
