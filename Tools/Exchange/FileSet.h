// Exchange/FileSet.h
// Replaces several files: all of them or none.
// Text: paths are raw bytes. Threads: one at a time.
#pragma once

#include "Runtime/internal/Result.h"
#include <filesystem>
#include <map>
#include <string_view>
#include <vector>

namespace Exchange {

class FileSet {
public:
    FileSet() = default;
    FileSet(const FileSet&) = delete;
    FileSet& operator=(const FileSet&) = delete;
    // Removes the temporary files that are left, and folders that stage() created if they are empty.
    ~FileSet();

    // Writes the new content of `path` to a temporary file beside it, with the permissions of the existing file.
    // Creates the folder of `path` if necessary, but none above it. If `path` is a symbolic link, its target is
    // replaced. Fails if the same file is staged already, perhaps by another path.
    [[nodiscard]] Runtime::Result<void> stage(const std::filesystem::path& path, std::string_view bytes);
    // Renames all temporary files to their targets. After a failure the files that were replaced are restored.
    [[nodiscard]] Runtime::Result<void> commit();

private:
    struct File {
        std::filesystem::path staged; // the temporary file with the new content
        std::filesystem::path old{};  // another with the old content; empty until it is made, and for a new target
        bool isInPlace = false;       // `staged` has been renamed to the target
    };
    Runtime::Result<void> replace(const std::filesystem::path& target, File& file);
    void rollBack();

    std::map<std::filesystem::path, File> files_; // by target
    std::vector<std::filesystem::path> folders_;  // those that were created
};

} // namespace Exchange
