// Compiler/StagedFolder.h
// A folder that is filled aside and put in its place in one step.
#pragma once

#include "Runtime/internal/Result.h"
#include <filesystem>

namespace Compiler {

class StagedFolder {
public:
    // An empty folder beside `target`, NAME.staged-XXXXXX; such folders that killed compiles left are removed. An error
    // if `target` is there and was not made by a compile, or if its folder cannot be written.
    [[nodiscard]] static Runtime::Result<StagedFolder> create(const std::filesystem::path& target);

    StagedFolder(StagedFolder&& other) noexcept;
    StagedFolder& operator=(StagedFolder&&) = delete;
    // Takes away what is aside: an unfinished folder, or the old one after its replacement.
    ~StagedFolder();

    [[nodiscard]] const std::filesystem::path& path() const noexcept { return staged_; }
    // Makes the target be this folder; an older target is exchanged for it in one step.
    [[nodiscard]] Runtime::Result<void> putInPlace();

private:
    StagedFolder(std::filesystem::path target, std::filesystem::path staged, int lock);

    std::filesystem::path target_;
    std::filesystem::path staged_; // empty once nothing is aside
    int lock_;                     // descriptor of the folder, locked; -1 where the file system has no locks
};

} // namespace Compiler
