#include "Compiler/StagedFolder.h"

#include <algorithm>
#include <cerrno>
#include <cstdio> // renameat2
#include <cstdlib>
#include <cstring>
#include <fcntl.h>
#include <fstream>
#include <string_view>
#include <sys/file.h> // flock
#include <sys/stat.h>
#include <unistd.h>
#include <utility>

namespace Compiler {

namespace fs = std::filesystem;

namespace {

// Says that a folder was made here, so that it may be replaced.
constexpr const char* markName = ".lumora-bundle";

Runtime::Error systemError(const fs::path& path, const char* doing) {
    return {.message = std::string(doing) + ": " + std::strerror(errno), .file = path};
}

bool isMarked(const fs::path& folder) {
    std::error_code failed;
    return fs::is_regular_file(fs::symlink_status(folder / markName, failed));
}

// Between a bundle's name and the six characters of its staged folder: nobody names a copy like that.
constexpr std::string_view stagedMiddle = ".staged-";

bool isStagedName(std::string_view name, std::string_view target) {
    if (!name.starts_with(target) || !name.substr(target.size()).starts_with(stagedMiddle))
        return false;
    name.remove_prefix(target.size() + stagedMiddle.size());
    return name.size() == 6 && std::ranges::all_of(name, [](unsigned char c) {
               return (c >= '0' && c <= '9') || (c >= 'a' && c <= 'z') || (c >= 'A' && c <= 'Z');
           });
}

// A compile holds its staged folder locked as long as it lives, from before the mark on.
int lock(const fs::path& folder) noexcept {
    const int descriptor = ::open(folder.c_str(), O_RDONLY | O_DIRECTORY | O_NOFOLLOW | O_CLOEXEC);
    if (descriptor < 0 || ::flock(descriptor, LOCK_EX | LOCK_NB) == 0)
        return descriptor;
    ::close(descriptor);
    return -1;
}

// The mark last, so that what a killed removal leaves is still known. What cannot be removed stays.
void discard(const fs::path& folder) {
    std::error_code ignored, failed;
    for (fs::directory_iterator entry(folder, failed), end; !failed && entry != end; entry.increment(failed))
        if (entry->path().filename() != markName)
            fs::remove_all(entry->path(), ignored);
    fs::remove_all(folder, ignored);
}

// Takes away what killed compiles of `target` left.
void removeAbandoned(const fs::path& target) {
    std::error_code failed;
    const fs::path beside = target.has_parent_path() ? target.parent_path() : fs::path(".");
    for (fs::directory_iterator entry(beside, failed), end; !failed && entry != end; entry.increment(failed)) {
        const fs::path& folder = entry->path();
        if (!isStagedName(folder.filename().native(), target.filename().native()) || !isMarked(folder))
            continue;
        const int locked = lock(folder);
        if (locked < 0)
            continue;
        discard(folder);
        ::close(locked);
    }
}

// What a compile may replace: nothing, an empty folder, or what a compile made.
bool mayReplace(const fs::path& target) {
    std::error_code failed;
    if (!fs::exists(fs::symlink_status(target, failed)))
        return true;
    return fs::is_directory(fs::symlink_status(target, failed)) && (fs::is_empty(target, failed) || isMarked(target));
}

} // namespace

Runtime::Result<StagedFolder> StagedFolder::create(const fs::path& given) {
    fs::path target = given.lexically_normal();
    if (!target.has_filename())
        target = target.parent_path();
    if (!mayReplace(target))
        return Runtime::Error{.message = "is there and was not made by a compile; it is left alone", .file = target};
    removeAbandoned(target);
    std::string path = target.string().append(stagedMiddle).append("XXXXXX");
    if (::mkdtemp(path.data()) == nullptr)
        return systemError(target, "cannot be made");
    StagedFolder folder(target, path, lock(path));
    // Not by writeFile, whose care takes a while in which a killed compile would leave a folder without its mark.
    if (!(std::ofstream(folder.path() / markName) << "Made by lumora compile.\n").flush())
        return systemError(folder.path() / markName, "cannot be written");
    // mkdtemp lets nobody else in; a bundle is for everybody.
    if (::chmod(path.c_str(), 0755) != 0)
        return systemError(target, "cannot be made");
    return folder;
}

StagedFolder::StagedFolder(fs::path target, fs::path staged, int lock)
    : target_(std::move(target)), staged_(std::move(staged)), lock_(lock) {}

StagedFolder::StagedFolder(StagedFolder&& other) noexcept
    : target_(std::move(other.target_)), staged_(std::exchange(other.staged_, fs::path())),
      lock_(std::exchange(other.lock_, -1)) {}

StagedFolder::~StagedFolder() {
    if (!staged_.empty())
        discard(staged_);
    if (lock_ >= 0)
        ::close(lock_);
}

Runtime::Result<void> StagedFolder::putInPlace() {
    std::error_code failed;
    const bool replaces = fs::exists(fs::symlink_status(target_, failed));
    const unsigned flags = replaces ? RENAME_EXCHANGE : RENAME_NOREPLACE;
    if (::renameat2(AT_FDCWD, staged_.c_str(), AT_FDCWD, target_.c_str(), flags) != 0)
        return systemError(target_, "cannot be put in place");
    if (!replaces)
        staged_.clear();
    return {};
}

} // namespace Compiler
