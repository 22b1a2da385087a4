// Exchange/FileSet.h
// Replaces several files: all of them or none.
// Text: paths are raw bytes. Threads: one at a time.
#pragma once

#include "Runtime/internal/Result.h"
#include <filesystem>
#include <string>
#include <string_view>
#include <vector>

namespace Exchange {

class FileSet {
public:
    FileSet() = default;
    FileSet(const FileSet&) = delete;
    FileSet& operator=(const FileSet&) = delete;
    // Removes staged files that were not committed, and folders that were created for them.
    ~FileSet();

    // Writes the new content of `path` to a temporary file beside it, with the permissions of the existing file.
    // Creates the folder of `path` if necessary, but none above it. If `path` is a symbolic link, its target is
    // replaced.
    [[nodiscard]] Runtime::Result<void> stage(const std::filesystem::path& path, std::string_view bytes);
    // Renames all temporary files to their targets. After a failure the files that were replaced are restored.
    [[nodiscard]] Runtime::Result<void> commit();

private:
    struct File {
        std::filesystem::path target, staged;
        std::filesystem::path old{}; // a file with the old content; empty if the target is new
        bool isInPlace = false;      // `staged` has been renamed to `target`
    };
    Runtime::Result<void> replace(File& file);
    void rollBack();

    std::vector<File> files_;
    std::vector<std::filesystem::path> folders_; // those that were created
};

} // namespace Exchange
