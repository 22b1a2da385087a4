#include "Program/FolderWatch.h"

#include "Compiler/StagedFolder.h"
#include "Runtime/internal/SystemError.h"
#include "SourceBundle/SourceFiles.h"
#include <algorithm>
#include <array>
#include <cerrno>
#include <chrono>
#include <cstring>
#include <poll.h>
#include <sys/inotify.h>
#include <unistd.h>
#include <utility>

namespace Tools {

namespace fs = std::filesystem;
using Clock = std::chrono::steady_clock;
using std::chrono::milliseconds;

namespace {

// IN_ATTRIB: a change of permissions may make a file readable. IN_ONLYDIR: watching a file fails.
constexpr std::uint32_t events = IN_CLOSE_WRITE | IN_ATTRIB | IN_CREATE | IN_DELETE | IN_MOVED_FROM | IN_MOVED_TO |
                                 IN_DELETE_SELF | IN_MOVE_SELF | IN_ONLYDIR;
constexpr milliseconds quiet{50};          // if no change follows in this time, the changes are complete
constexpr milliseconds longestBurst{1000}; // after this time, consecutive changes are reported although more follow
constexpr milliseconds pollInterval{500};  // between two checks for missing folders

// The absolute path without a trailing slash.
fs::path normal(const fs::path& path) {
    const fs::path whole = fs::absolute(path).lexically_normal();
    return whole.has_filename() ? whole : whole.parent_path();
}

// Waits until one of the descriptors is readable or `limit` is over (negative: no limit). Returns whether `stop` is
// readable.
bool waitFor(int stop, int inotify, milliseconds limit) {
    std::array<pollfd, 2> both = {{{stop, POLLIN, 0}, {inotify, POLLIN, 0}}};
    ::poll(both.data(), both.size(), static_cast<int>(limit.count()));
    return both[0].revents != 0;
}

} // namespace

FolderWatch::FolderWatch(std::vector<fs::path> folders, fs::path output, int inotify)
    : folders_(std::move(folders)), output_(std::move(output)), inotify_(inotify) {}

Runtime::Result<FolderWatch> FolderWatch::create(const std::vector<fs::path>& folders, const fs::path& output) {
    std::vector<fs::path> whole;
    std::ranges::transform(folders, std::back_inserter(whole), normal);
    FolderWatch watch(std::move(whole), normal(output), ::inotify_init1(IN_NONBLOCK | IN_CLOEXEC));
    if (watch.inotify_.number() < 0)
        return Runtime::systemError(folders.front(), "cannot be watched");
    if (auto watched = watch.watchAll(); !watched)
        return std::move(watched.error());
    return watch;
}

bool FolderWatch::isIgnored(const fs::path& path) const {
    if (path.filename().native().starts_with('.'))
        return true;
    const std::string& output = output_.native();
    if (!path.native().starts_with(output))
        return false;
    const std::string_view rest = std::string_view(path.native()).substr(output.size());
    return rest.empty() || rest.starts_with('/') || rest.starts_with(Compiler::stagedInfix); // of a compile
}

Runtime::Result<void> FolderWatch::watchAll() {
    const std::map<int, fs::path> before = std::exchange(watched_, {});
    missing_.clear();
    for (const fs::path& folder : folders_)
        if (auto watched = watchBelow(folder, 0); !watched)
            return watched;
    for (const auto& [number, path] : before) // a folder that is watched again keeps its number
        if (!watched_.contains(number))
            ::inotify_rm_watch(inotify_.number(), number);
    isStale_ = false;
    return {};
}

Runtime::Result<void> FolderWatch::watchBelow(const fs::path& folder, int depth) {
    const int number = ::inotify_add_watch(inotify_.number(), folder.c_str(), events);
    if (number < 0 && errno == ENOSPC)
        return Runtime::systemError(folder,
                                    "cannot be watched: all watches are in use (raise fs.inotify.max_user_watches)");
    if (number < 0 && errno == ENOMEM)
        return Runtime::systemError(folder, "cannot be watched");
    if (number < 0) { // deleted meanwhile, or unreadable
        if (depth == 0)
            missing_.insert(folder);
        return {};
    }
    watched_[number] = folder;
    std::error_code failed;
    for (fs::directory_iterator entry(folder, failed), end; !failed && entry != end; entry.increment(failed)) {
        std::error_code ignored;
        // Like the source reader, follow links to folders only if they are language folders. Below a link no folder is
        // watched, because links can lead in circles or out of the source.
        const bool isLink = entry->is_symlink(ignored);
        const bool isFolder = entry->is_directory(ignored) && (!isLink || entry->path().extension() == ".lproj");
        if (isFolder && !isIgnored(entry->path()) && depth < SourceBundle::maxFolderDepth)
            if (auto watched = watchBelow(entry->path(), isLink ? SourceBundle::maxFolderDepth : depth + 1); !watched)
                return watched;
    }
    return {};
}

bool FolderWatch::addChange(const inotify_event& event, std::string_view name) {
    if ((event.mask & IN_Q_OVERFLOW) != 0) {
        isStale_ = true;
        changed_.insert(folders_.begin(), folders_.end());
        return true;
    }
    const auto folder = watched_.find(event.wd);
    if (folder == watched_.end() || (event.mask & IN_IGNORED) != 0)
        return false;
    const fs::path path = name.empty() ? folder->second : folder->second / name;
    if (!name.empty() && isIgnored(path)) // a watched folder counts, even if it is hidden
        return false;
    changed_.insert(path);
    isStale_ |= (event.mask & (IN_ISDIR | IN_DELETE_SELF | IN_MOVE_SELF)) != 0;
    return true;
}

bool FolderWatch::readEvents() {
    bool isChanged = false;
    alignas(inotify_event) std::array<char, 65536> buffer;
    for (;;) {
        const ssize_t size = ::read(inotify_.number(), buffer.data(), buffer.size());
        if (size <= 0)
            return isChanged;
        for (std::size_t at = 0; at < static_cast<std::size_t>(size);) {
            inotify_event event{};
            std::memcpy(&event, buffer.data() + at, sizeof event);
            // The name is padded with NULs.
            isChanged |= addChange(event, event.len == 0 ? "" : buffer.data() + at + sizeof event);
            at += sizeof event + event.len;
        }
    }
}

Runtime::Result<std::optional<std::set<fs::path>>> FolderWatch::wait(int stop) {
    changed_.clear();
    Clock::time_point firstChange{};
    for (;;) {
        const bool isChanged = !changed_.empty();
        milliseconds limit{-1};
        if (isChanged)
            limit = quiet;
        else if (!missing_.empty())
            limit = pollInterval;
        if (waitFor(stop, inotify_.number(), limit))
            return std::optional<std::set<fs::path>>();
        bool hasMore = readEvents();
        for (const fs::path& folder : missing_)
            if (std::error_code failed;
                fs::is_directory(folder, failed) && ::access(folder.c_str(), R_OK | X_OK) == 0) {
                changed_.insert(folder);
                hasMore = isStale_ = true;
            }
        if (isStale_)
            if (auto watched = watchAll(); !watched)
                return std::move(watched.error());
        if (!isChanged)
            firstChange = Clock::now();
        if (isChanged && (!hasMore || Clock::now() - firstChange > longestBurst))
            return std::optional(std::exchange(changed_, {}));
    }
}

} // namespace Tools
