// Program/FolderWatch.h
// Waits for changes below folders, with inotify.
// Text: paths are raw bytes. Threads: one at a time.
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
    // Watches the folders and, as deeply as the source reader, their subfolders, except hidden files and folders and
    // everything at `output`. A deleted folder is watched again when it reappears. Fails if the system has no more
    // watches, descriptors or memory.
    [[nodiscard]] static Runtime::Result<FolderWatch> create(const std::vector<std::filesystem::path>& folders,
                                                             const std::filesystem::path& output);

    // Waits for a change, then until none follows for 50 ms, but at most for another second. Returns the changed files,
    // and folders in which the exact changes are unknown. No value if the descriptor `stop` becomes readable meanwhile.
    // Fails like create().
    [[nodiscard]] Runtime::Result<std::optional<std::set<std::filesystem::path>>> wait(int stop);

private:
    FolderWatch(std::vector<std::filesystem::path> folders, std::filesystem::path output, int inotify);

    Runtime::Result<void> watchAll();
    // Watches the folder and its subfolders. `depth`: 0 for those of folders_; at maxFolderDepth, only the folder.
    Runtime::Result<void> watchBelow(const std::filesystem::path& folder, int depth);
    bool isIgnored(const std::filesystem::path& path) const;
    // Both add what has changed to `changed_`, and return whether anything has. `name` is the event's file in the
    // watched folder, or empty for the folder itself.
    bool readEvents();
    bool addChange(const inotify_event& event, std::string_view name);

    std::vector<std::filesystem::path> folders_;
    std::filesystem::path output_;
    Runtime::Descriptor inotify_;
    std::map<int, std::filesystem::path> watched_; // by watch descriptor
    std::set<std::filesystem::path> missing_;      // those of folders_ that do not exist or are unreadable
    std::set<std::filesystem::path> changed_;
    bool isStale_ = false; // folders were added or removed, or may have been: watches must be updated
};

} // namespace Tools
