#include "Runtime/internal/File.h"

#include "Runtime/internal/Descriptor.h"
#include "Runtime/internal/OpenFile.h"
#include "Runtime/internal/RealPath.h"
#include "Runtime/internal/SystemError.h"
#include <array>
#include <cerrno>
#include <charconv>
#include <climits> // PATH_MAX
#include <cstdint>
#include <fcntl.h>
#include <linux/magic.h>
#include <optional>
#include <sys/random.h>
#include <sys/stat.h>
#include <sys/statfs.h>
#include <unistd.h>
#include <utility>

namespace Runtime {

namespace {

constexpr int maxLinks = 40; // on the way to a file; the system's own limit

// The folder of the file at `path`, with a slash at its end.
std::string folderOf(const std::string& path) {
    const std::size_t slash = path.rfind('/');
    return slash == path.npos ? "./" : path.substr(0, slash + 1);
}

// The target of the link at `path`, or no value where there is no link.
std::optional<std::string> linkAt(const std::string& path) {
    std::array<char, PATH_MAX> text;
    const ssize_t size = ::readlink(path.c_str(), text.data(), text.size());
    return size < 0 ? std::nullopt : std::optional(std::string(text.data(), static_cast<std::size_t>(size)));
}

// Whether `folder` is in /proc. There the text of a link to an open file is only a name, which may be outdated.
bool isInProc(const std::string& folder) noexcept {
    struct statfs system {};
    return ::statfs(folder.c_str(), &system) == 0 && system.f_type == PROC_SUPER_MAGIC;
}

// The descriptor of this process that the link at `path` leads to; negative where it leads to something else.
int ownDescriptor(const std::string& path) {
    const std::string folder = realPath(folderOf(path)), process = realPath("/proc/self");
    const char* const name = path.c_str() + path.rfind('/') + 1;
    int number = -1;
    const auto read = std::from_chars(name, path.c_str() + path.size(), number);
    const bool isNumber = read.ec == std::errc() && *read.ptr == '\0';
    return isNumber && !process.empty() && folder.starts_with(process + '/') && folder.ends_with("/fd") ? number : -1;
}

Result<void> writeInto(int opened, const std::string& path, std::string_view bytes) {
    Descriptor file(opened);
    if (file.number() < 0 || !file.write(bytes) || !file.close())
        return systemError(path, "cannot be written");
    return {};
}

// Writes to a pipe or a device, which must not be replaced by a file.
Result<void> writeThrough(const std::string& path, std::string_view bytes) {
    return writeInto(::open(path.c_str(), O_WRONLY | O_TRUNC | O_CLOEXEC), path, bytes);
}

// Writes to an open file of a process, which has no name to replace: at the offset of our own descriptor, or at the end
// of another process's file.
Result<void> writeOpened(const std::string& path, std::string_view bytes) {
    const int own = ownDescriptor(path);
    const int file = own < 0 ? ::open(path.c_str(), O_WRONLY | O_APPEND | O_CLOEXEC) : ::fcntl(own, F_DUPFD_CLOEXEC, 0);
    return writeInto(file, path, bytes);
}

// Creates a new file beside `path`, with the default permissions under the umask. Returns it with its path; a negative
// descriptor on failure.
std::pair<Descriptor, std::string> createBeside(const std::string& path) {
    constexpr int mostTries = 100;
    for (int tries = 1;; ++tries) {
        std::uint32_t random = 0;
        if (::getrandom(&random, sizeof random, GRND_NONBLOCK) < 0) // the kernel has no random numbers yet
            random = static_cast<std::uint32_t>(::getpid() + tries);
        std::string name = path + "." + std::to_string(random);
        Descriptor file(::open(name.c_str(), O_WRONLY | O_CREAT | O_EXCL | O_CLOEXEC, 0666));
        if (file.number() >= 0 || errno != EEXIST || tries == mostTries)
            return {std::move(file), std::move(name)};
    }
}

// Gives an open file the permissions of the one at `path`, if there is one.
bool copyPermissions(const std::string& path, const Descriptor& file) noexcept {
    struct stat status {};
    return ::stat(path.c_str(), &status) != 0 || ::fchmod(file.number(), status.st_mode & 07777) == 0;
}

Result<void> replace(const std::string& path, std::string_view bytes, WriteSafety safety) {
    auto [file, temporary] = createBeside(path);
    if (file.number() < 0)
        return systemError(path, "cannot be written");
    const bool written = copyPermissions(path, file) && file.write(bytes) &&
                         (safety == WriteSafety::unsynced || ::fsync(file.number()) == 0) && file.close() &&
                         ::rename(temporary.c_str(), path.c_str()) == 0;
    if (written)
        return {};
    Error error = systemError(path, "cannot be written");
    ::unlink(temporary.c_str());
    return error;
}

} // namespace

Result<std::string> readFile(const std::string& path, std::size_t limit, std::string_view folder) {
    const auto file = OpenFile::open(path, limit, folder);
    if (!file)
        return file.error();
    // The file may shrink or grow while it is read, so the number of bytes read decides.
    std::string bytes(file->size(), '\0');
    const auto filled = file->read(bytes.data(), bytes.size(), 0);
    if (!filled)
        return filled.error();
    bytes.resize(*filled);
    return bytes;
}

Result<void> writeFile(const std::string& path, std::string_view bytes, WriteSafety safety) {
    if (path.find('\0') != path.npos) {
        errno = EINVAL;
        return systemError(path, "cannot be written");
    }
    std::string place = path;
    for (int links = 0; links <= maxLinks; ++links) {
        const std::optional<std::string> link = linkAt(place);
        if (!link) {
            struct stat status {};
            const bool isThere = ::stat(place.c_str(), &status) == 0;
            return isThere && !S_ISREG(status.st_mode) ? writeThrough(place, bytes) : replace(place, bytes, safety);
        }
        const std::string folder = folderOf(place);
        if (isInProc(folder))
            return writeOpened(place, bytes);
        place = link->starts_with('/') ? *link : folder + *link;
    }
    errno = ELOOP;
    return systemError(path, "cannot be written");
}

} // namespace Runtime
