// Program/FolderWatch.h
// Waits until something changes below folders.
// Text: paths as the file system has them. Threads: one at a time.
#pragma once

#include "Runtime/internal/Descriptor.h"
#include "Runtime/internal/Result.h"
#include <filesystem>
#include <map>
#include <optional>
#include <set>
#include <string_view>
#include <vector>

struct inotify_event;

namespace Tools {

class FolderWatch {
public:
    // Watches the folders at any depth, hidden files and folders and what is at `output` excepted. A folder that is
    // gone is watched again when it is back. An error where the system allows no more watches.
    [[nodiscard]] static Runtime::Result<FolderWatch> create(const std::vector<std::filesystem::path>& folders,
                                                             const std::filesystem::path& output);

    // Waits for a change, and until no other has followed for a moment. Returns what was changed: files, or folders
    // where it is not known what changed in them; no value when `stop`, a descriptor, can be read first.
    [[nodiscard]] Runtime::Result<std::optional<std::set<std::filesystem::path>>> wait(int stop);

private:
    FolderWatch(std::vector<std::filesystem::path> folders, std::filesystem::path output, int inotify);

    Runtime::Result<void> watchAll();
    Runtime::Result<void> watchBelow(const std::filesystem::path& folder, int depth);
    bool isIgnored(const std::filesystem::path& path) const;
    void readEvents();
    void take(const inotify_event& event, std::string_view name);

    std::vector<std::filesystem::path> folders_;
    std::filesystem::path output_;
    Runtime::Descriptor inotify_;
    std::map<int, std::filesystem::path> watched_; // by the system's number of the watch
    std::set<std::filesystem::path> missing_;      // of the folders
    std::set<std::filesystem::path> changed_;
    bool isStale_ = false; // a folder came or went: watches have to be set anew
};

} // namespace Tools
