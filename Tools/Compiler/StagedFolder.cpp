#include "Compiler/StagedFolder.h"

#include "Runtime/internal/OpenFile.h"
#include "Runtime/internal/SystemError.h"
#include <algorithm>
#include <cerrno>
#include <cstdio> // renameat2
#include <cstdlib>
#include <fcntl.h>
#include <functional>
#include <string>
#include <sys/file.h> // flock
#include <sys/stat.h>
#include <unistd.h>
#include <utility>

namespace Compiler {

namespace fs = std::filesystem;

namespace {

// A spare descriptor, which is closed when another one is needed.
Runtime::Descriptor reserved() noexcept {
    return Runtime::Descriptor(::open("/", O_RDONLY | O_DIRECTORY | O_CLOEXEC));
}

bool isMarked(const fs::path& folder) {
    std::error_code failed;
    return fs::is_regular_file(fs::symlink_status(folder / SourceBundle::compiledMark, failed));
}

bool isStagedName(std::string_view name, std::string_view target) {
    if (!name.starts_with(target) || !name.substr(target.size()).starts_with(stagedInfix))
        return false;
    name.remove_prefix(target.size() + stagedInfix.size());
    return name.size() == 6 && std::ranges::all_of(name, [](unsigned char c) {
               return (c >= '0' && c <= '9') || (c >= 'a' && c <= 'z') || (c >= 'A' && c <= 'Z');
           });
}

// Returns a descriptor that holds the folder's lock as long as it is open. Negative if another compile holds the lock
// or it cannot be taken.
int lock(const fs::path& folder) noexcept {
    const int descriptor = ::open(folder.c_str(), O_RDONLY | O_DIRECTORY | O_NOFOLLOW | O_CLOEXEC);
    if (descriptor < 0 || ::flock(descriptor, LOCK_EX | LOCK_NB) == 0)
        return descriptor;
    ::close(descriptor);
    return -1;
}

// Removes the folder, its mark file last, so that the next compile can continue an interrupted removal. Ignores errors.
void discard(const fs::path& folder) {
    std::error_code ignored, failed;
    for (fs::directory_iterator entry(folder, failed), end; !failed && entry != end; entry.increment(failed))
        if (entry->path().filename() != SourceBundle::compiledMark)
            fs::remove_all(entry->path(), ignored);
    fs::remove_all(folder, ignored);
}

// Removes the folders that killed compiles of `target` left behind: marked or empty ones.
void removeAbandoned(const fs::path& target) {
    std::error_code failed;
    const fs::path beside = target.has_parent_path() ? target.parent_path() : fs::path(".");
    for (fs::directory_iterator entry(beside, failed), end; !failed && entry != end; entry.increment(failed)) {
        const fs::path& folder = entry->path();
        if (!isStagedName(folder.filename().native(), target.filename().native()))
            continue;
        const Runtime::Descriptor locked(lock(folder));
        if (locked.number() < 0)
            continue;
        if (isMarked(folder))
            discard(folder);
        else
            ::rmdir(folder.c_str()); // fails unless it is empty
    }
}

// Whether `target` does not exist, is an empty folder, or is a compiled bundle.
bool mayReplace(const fs::path& target) {
    std::error_code failed;
    if (!fs::exists(fs::symlink_status(target, failed)))
        return true;
    return fs::is_directory(fs::symlink_status(target, failed)) && (fs::is_empty(target, failed) || isMarked(target));
}

// Whether the regular file at `path` has exactly this content.
bool hasContent(const fs::path& path, std::span<const std::string_view> pieces) {
    constexpr std::size_t partBytes = std::size_t{1} << 16;
    std::size_t total = 0;
    for (const std::string_view piece : pieces)
        total += piece.size();
    const auto file = Runtime::OpenFile::open(path, total);
    if (!file || file->size() != total)
        return false;
    std::string part(std::min(partBytes, total), '\0');
    std::string_view unread; // the rest of `part`
    std::uint64_t offset = 0;
    for (std::string_view piece : pieces)
        while (!piece.empty()) {
            if (unread.empty()) {
                const auto filled = file->read(part.data(), std::min<std::uint64_t>(partBytes, total - offset), offset);
                if (!filled || *filled == 0)
                    return false;
                unread = std::string_view(part).substr(0, *filled);
                offset += *filled;
            }
            const std::size_t size = std::min(piece.size(), unread.size());
            if (piece.substr(0, size) != unread.substr(0, size))
                return false;
            piece.remove_prefix(size);
            unread.remove_prefix(size);
        }
    return true;
}

// Creates the folder of a file, unless there is one. False on failure.
bool createFolderOf(const fs::path& file) {
    std::error_code failed;
    fs::create_directories(file.parent_path(), failed);
    return !failed;
}

// Writes a new file. Returns false and sets errno on failure. Not synced to the disk: an output damaged by a power
// failure can be compiled again.
bool writeNew(const fs::path& path, std::span<const std::string_view> pieces) {
    Runtime::Descriptor file(::open(path.c_str(), O_WRONLY | O_CREAT | O_EXCL | O_CLOEXEC, 0666));
    if (file.number() < 0)
        return false;
    for (const std::string_view piece : pieces)
        if (!file.write(piece))
            return false;
    return file.close();
}

// Calls `make` to create the file at `path`, after its folder if that is missing. An existing file is replaced in one
// step, so that even a kill leaves the folder with its mark file, and never written to, because it may be a hard link
// to the target's file. Returns false and sets errno on failure.
bool put(const fs::path& path, const std::function<bool(const fs::path&)>& make) {
    if (make(path) || (errno == ENOENT && createFolderOf(path) && make(path)))
        return true;
    if (errno != EEXIST)
        return false;
    const fs::path next = path.string() + ".next";
    if (!make(next) || ::rename(next.c_str(), path.c_str()) != 0)
        return false;
    ::unlink(next.c_str()); // rename keeps both names if they are hard links to the same file
    return true;
}

} // namespace

Runtime::Result<StagedFolder> StagedFolder::create(const fs::path& given) {
    fs::path target = given.lexically_normal();
    if (!target.has_filename())
        target = target.parent_path();
    if (!mayReplace(target))
        return Runtime::Error{.message = "already exists and is not a compiled bundle", .file = target};
    removeAbandoned(target);
    // Before the folder is created, because its removal must never fail for lack of descriptors.
    Reserve reserve{reserved(), reserved(), reserved()};
    if (std::ranges::any_of(reserve, [](const Runtime::Descriptor& one) { return one.number() < 0; }))
        return Runtime::systemError(target, "cannot be created");
    std::string path = target.string().append(stagedInfix).append("XXXXXX");
    if (::mkdtemp(path.data()) == nullptr)
        return Runtime::systemError(target, "cannot be created");
    StagedFolder folder(target, path, std::move(reserve));
    if (auto written = folder.write(SourceBundle::compiledMark, markText); !written)
        return std::move(written.error());
    // mkdtemp creates a folder that only its owner can read.
    if (::chmod(path.c_str(), 0755) != 0)
        return Runtime::systemError(target, "cannot be created");
    return folder;
}

// Takes the lock before the folder is marked, because marked folders without a lock count as abandoned.
StagedFolder::StagedFolder(fs::path target, fs::path staged, Reserve reserve)
    : target_(std::move(target)), staged_(std::move(staged)), lock_(lock(staged_)), reserve_(std::move(reserve)) {}

StagedFolder::StagedFolder(StagedFolder&& other) noexcept
    : target_(std::move(other.target_)), staged_(std::exchange(other.staged_, fs::path())),
      lock_(std::move(other.lock_)), reserve_(std::move(other.reserve_)) {}

StagedFolder::~StagedFolder() {
    for (Runtime::Descriptor& one : reserve_)
        one = Runtime::Descriptor(-1);
    if (!staged_.empty())
        discard(staged_);
}

Runtime::Result<void> StagedFolder::write(const fs::path& name, std::span<const std::string_view> pieces) const {
    if (hasContent(target_ / name, pieces) && keep(name))
        return {};
    if (put(staged_ / name, [pieces](const fs::path& path) { return writeNew(path, pieces); }))
        return {};
    return Runtime::systemError(target_ / name, "cannot be written");
}

bool StagedFolder::keep(const fs::path& name) const {
    const fs::path old = target_ / name;
    return put(staged_ / name, [&old](const fs::path& path) { return ::link(old.c_str(), path.c_str()) == 0; });
}

Runtime::Result<void> StagedFolder::putInPlace() {
    std::error_code failed;
    const bool replaces = fs::exists(fs::symlink_status(target_, failed));
    const unsigned flags = replaces ? RENAME_EXCHANGE : RENAME_NOREPLACE;
    if (::renameat2(AT_FDCWD, staged_.c_str(), AT_FDCWD, target_.c_str(), flags) != 0)
        return Runtime::systemError(target_, "cannot be put in place");
    if (!replaces)
        staged_.clear();
    return {};
}

} // namespace Compiler
