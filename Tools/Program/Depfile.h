// Program/Depfile.h
// Writes dependency files for build systems.
#pragma once

#include "Runtime/internal/Result.h"
#include <string>
#include <vector>

namespace CLI {
class App;
}

namespace Tools {

// The options --depfile and --depfile-target of a command that reads sources.
struct Depfile {
    std::string path; // empty: none is written
    std::string target;

    void addOptions(CLI::App& command);
    // Writes a makefile rule that makes `target` depend on `inputs` and, for folders, on all files and folders below
    // them. Folders are included because they change when files are added or removed. If make cannot read a path, the
    // target depends on a file that does not exist instead. Each input has an empty rule, so that it may be deleted.
    [[nodiscard]] Runtime::Result<void> write(const std::vector<std::string>& inputs) const;
};

} // namespace Tools
