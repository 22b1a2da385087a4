// Compiler/StagedFolder.h
// A folder that is built beside its target and then replaces it atomically.
// Threads: different files may be written at the same time.
#pragma once

#include "Runtime/internal/Descriptor.h"
#include "Runtime/internal/Result.h"
#include "SourceBundle/SourceFiles.h" // compiledMark
#include <array>
#include <filesystem>
#include <span>
#include <string_view>

namespace Compiler {

// The first line of the file SourceBundle::compiledMark.
inline constexpr std::string_view markText = "Made by lumora compile.\n";
// The part between the bundle's name and the six random characters of a staged folder's name.
inline constexpr std::string_view stagedInfix = ".staged-";

class StagedFolder {
public:
    // Creates the folder NAME.staged-XXXXXX beside `target`, with a mark file, and removes such folders of killed
    // compiles. Errors: `target` exists and is neither an empty folder nor a compiled bundle; the folder cannot be
    // created.
    [[nodiscard]] static Runtime::Result<StagedFolder> create(const std::filesystem::path& target);

    StagedFolder(StagedFolder&& other) noexcept;
    StagedFolder& operator=(StagedFolder&&) = delete;
    // Removes the unfinished folder, or the old target after its replacement. Works even when no descriptors are free.
    ~StagedFolder();

    [[nodiscard]] const std::filesystem::path& target() const noexcept { return target_; }

    // Writes the file `name` in the folder or a subfolder; its content is `pieces`, joined. If the target's file `name`
    // has the same content, keeps that instead.
    [[nodiscard]] Runtime::Result<void> write(const std::filesystem::path& name,
                                              std::span<const std::string_view> pieces) const;
    [[nodiscard]] Runtime::Result<void> write(const std::filesystem::path& name, std::string_view bytes) const {
        return write(name, {&bytes, 1});
    }
    // Hard-links the target's file `name` into the folder, so that it keeps its modification time. Returns false if
    // that is impossible.
    [[nodiscard]] bool keep(const std::filesystem::path& name) const;
    // Moves the folder to the target; an older target is exchanged atomically.
    [[nodiscard]] Runtime::Result<void> putInPlace();

private:
    using Reserve = std::array<Runtime::Descriptor, 3>; // as many as the destructor needs to remove a bundle

    StagedFolder(std::filesystem::path target, std::filesystem::path staged, Reserve reserve);

    std::filesystem::path target_;
    std::filesystem::path staged_; // empty when there is nothing to remove
    // The folder's lock, which shows other compiles that this one is running; negative if the file system has no locks.
    Runtime::Descriptor lock_;
    Reserve reserve_;
};

} // namespace Compiler
