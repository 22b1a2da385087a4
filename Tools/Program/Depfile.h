// Program/Depfile.h
// The files that a build must watch to know when a command has to run again.
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
    // Writes a makefile that says that `target` depends on `sources` and, for a folder, on all files and folders below it: a
    // folder changes when a file joins or leaves it.
    [[nodiscard]] Runtime::Result<void> write(const std::vector<std::string>& sources) const;
};

} // namespace Tools
