#include "Compiler/StagedFolder.h"

#include "Runtime/File.h"
#include <cerrno>
#include <cstdio> // renameat2
#include <cstdlib>
#include <cstring>
#include <fcntl.h>
#include <sys/stat.h>
#include <utility>

namespace Compiler {

namespace fs = std::filesystem;

namespace {

// Says that a folder was made here, so that it may be replaced.
constexpr const char* markName = ".lumora-bundle";

Runtime::Error systemError(const fs::path& path, const char* doing) {
    return {.message = std::string(doing) + ": " + std::strerror(errno), .file = path};
}

// What a compile may replace: nothing, an empty folder, or what a compile made.
bool mayReplace(const fs::path& target) {
    std::error_code failed;
    if (!fs::exists(fs::symlink_status(target, failed)))
        return true;
    return fs::is_directory(fs::symlink_status(target, failed)) &&
           (fs::is_empty(target, failed) || fs::is_regular_file(target / markName, failed));
}

} // namespace

Runtime::Result<StagedFolder> StagedFolder::create(const fs::path& given) {
    fs::path target = given.lexically_normal();
    if (!target.has_filename())
        target = target.parent_path();
    if (!mayReplace(target))
        return Runtime::Error{.message = "is there and was not made by a compile; it is left alone", .file = target};
    std::string staged = target.string() + ".XXXXXX";
    if (::mkdtemp(staged.data()) == nullptr)
        return systemError(target, "cannot be made");
    StagedFolder folder(target, staged);
    // mkdtemp lets nobody else in; a bundle is for everybody.
    if (::chmod(staged.c_str(), 0755) != 0)
        return systemError(target, "cannot be made");
    if (auto marked = Runtime::writeFile(folder.path() / markName, "Made by lumora compile.\n"); !marked)
        return std::move(marked.error());
    return folder;
}

StagedFolder::StagedFolder(fs::path target, fs::path staged) : target_(std::move(target)), staged_(std::move(staged)) {}

StagedFolder::StagedFolder(StagedFolder&& other) noexcept
    : target_(std::move(other.target_)), staged_(std::exchange(other.staged_, fs::path())) {}

StagedFolder::~StagedFolder() {
    std::error_code ignored;
    if (!staged_.empty())
        fs::remove_all(staged_, ignored);
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
