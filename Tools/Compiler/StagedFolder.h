// Compiler/StagedFolder.h
// A folder that is filled aside and then put in its place in one step.
#pragma once

#include "Runtime/internal/Descriptor.h"
#include "Runtime/internal/Result.h"
#include <array>
#include <filesystem>
#include <span>
#include <string_view>

namespace Compiler {

// The file that marks a folder as made by a compile, so that it may be replaced, and its first line.
inline constexpr const char* markName = ".lumora-bundle";
inline constexpr std::string_view markText = "Made by lumora compile.\n";

class StagedFolder {
public:
    // An empty folder beside `target`, NAME.staged-XXXXXX; such folders that killed compiles left are removed. Errors:
    // `target` exists and is neither empty nor marked, or its folder cannot be written.
    [[nodiscard]] static Runtime::Result<StagedFolder> create(const std::filesystem::path& target);

    StagedFolder(StagedFolder&& other) noexcept;
    StagedFolder& operator=(StagedFolder&&) = delete;
    // Removes the unfinished folder, or the old one after its replacement; needs no descriptors that are free.
    ~StagedFolder();

    [[nodiscard]] const std::filesystem::path& path() const noexcept { return staged_; }
    [[nodiscard]] const std::filesystem::path& target() const noexcept { return target_; }

    // Writes a file below the folder, whose content is the pieces. If the target has the same file, that one is linked,
    // so that it keeps its time.
    [[nodiscard]] Runtime::Result<void> write(const std::filesystem::path& name,
                                              std::span<const std::string_view> pieces) const;
    [[nodiscard]] Runtime::Result<void> write(const std::filesystem::path& name, std::string_view bytes) const {
        return write(name, {&bytes, 1});
    }
    // Makes this folder the target; an older target is exchanged for it in one step.
    [[nodiscard]] Runtime::Result<void> putInPlace();

private:
    using Reserve = std::array<Runtime::Descriptor, 3>; // what the destructor needs

    StagedFolder(std::filesystem::path target, std::filesystem::path staged, Reserve reserve);

    std::filesystem::path target_;
    std::filesystem::path staged_; // empty once nothing is aside
    // Locked as long as the compile lives; -1 where the file system has no locks.
    Runtime::Descriptor lock_;
    Reserve reserve_;
};

} // namespace Compiler
