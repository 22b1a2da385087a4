// Exchange/FileSet.h
// Files that are replaced together: all of them or none.
// Text: paths as the file system has them. Threads: one at a time.
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
    // Takes away what was not put in place, and folders that were made for it.
    ~FileSet();

    // Writes what `path` is to hold to a temporary file beside it, with the permissions of the file that it replaces;
    // makes its folder if need be. A link stays, and what it leads to is replaced.
    [[nodiscard]] Runtime::Result<void> stage(const std::filesystem::path& path, std::string_view bytes);
    // Puts every file in its place, one rename each. After a failure the files are what they were before.
    [[nodiscard]] Runtime::Result<void> commit();

private:
    struct File {
        std::filesystem::path target, staged;
        std::filesystem::path old{}; // what the target was; empty if it is new
        bool isInPlace = false;
    };
    Runtime::Result<void> put(File& file);
    void goBack();

    std::vector<File> files_;
    std::vector<std::filesystem::path> folders_; // that were made
};

} // namespace Exchange
