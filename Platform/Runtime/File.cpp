#include "Runtime/internal/File.h"

#include "Runtime/internal/Descriptor.h"
#include "Runtime/internal/OpenFile.h"
#include <array>
#include <cerrno>
#include <charconv>
#include <climits> // PATH_MAX
#include <cstdio>
#include <cstdlib>
#include <cstring>
#include <fcntl.h>
#include <linux/magic.h>
#include <memory>
#include <optional>
#include <sys/stat.h>
#include <sys/statfs.h>
#include <unistd.h>
#include <utility>

namespace Runtime {

namespace {

constexpr int maxLinks = 40; // that lead to a file, as the system has it

Error systemError(const std::string& path, const char* doing) {
    return {.message = std::string(doing) + ": " + std::strerror(errno), .file = path};
}

bool writeAll(int file, std::string_view bytes) noexcept {
    while (!bytes.empty()) {
        const ssize_t written = ::write(file, bytes.data(), bytes.size());
        if (written < 0 && errno != EINTR)
            return false;
        if (written > 0)
            bytes.remove_prefix(static_cast<std::size_t>(written));
    }
    return true;
}

// With a slash behind.
std::string folderOf(const std::string& path) {
    const std::size_t slash = path.rfind('/');
    return slash == path.npos ? "./" : path.substr(0, slash + 1);
}

// What the link at `path` says, or no value where no link is.
std::optional<std::string> linkAt(const std::string& path) {
    std::array<char, PATH_MAX> text;
    const ssize_t size = ::readlink(path.c_str(), text.data(), text.size());
    return size < 0 ? std::nullopt : std::optional(std::string(text.data(), static_cast<std::size_t>(size)));
}

std::string realPath(const std::string& path) {
    const std::unique_ptr<char, decltype(&std::free)> real(::realpath(path.c_str(), nullptr), &std::free);
    return real == nullptr ? std::string() : std::string(real.get());
}

// Links below /proc lead to what a process has open. What they say is only how that was once called.
bool isOfProcesses(const std::string& folder) noexcept {
    struct statfs system {};
    return ::statfs(folder.c_str(), &system) == 0 && system.f_type == PROC_SUPER_MAGIC;
}

// The descriptor of this process that the link at `path` stands for; negative where it stands for something else.
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
    if (file.number() < 0 || !writeAll(file.number(), bytes) || !file.close())
        return systemError(path, "cannot be written");
    return {};
}

Result<void> writeThrough(const std::string& path, std::string_view bytes) {
    return writeInto(::open(path.c_str(), O_WRONLY | O_TRUNC | O_CLOEXEC), path, bytes);
}

// To what a process has open: nothing there has a name that could be replaced. Into an own descriptor, so that its
// offset holds, and that it appends; behind what is there where another process has it.
Result<void> writeOpened(const std::string& path, std::string_view bytes) {
    const int own = ownDescriptor(path);
    const int file = own < 0 ? ::open(path.c_str(), O_WRONLY | O_APPEND | O_CLOEXEC) : ::fcntl(own, F_DUPFD_CLOEXEC, 0);
    return writeInto(file, path, bytes);
}

// The mode of the file that is there; of a new one, what the umask lets others have.
mode_t modeOf(const std::string& path) noexcept {
    struct stat status {};
    if (::stat(path.c_str(), &status) == 0)
        return status.st_mode & 07777;
    const mode_t mask = ::umask(0);
    ::umask(mask);
    return 0666 & ~mask;
}

Result<void> replace(const std::string& path, std::string_view bytes) {
    std::string temporary = path + ".XXXXXX";
    Descriptor file(::mkostemp(temporary.data(), O_CLOEXEC));
    if (file.number() < 0)
        return systemError(path, "cannot be written");
    const bool written = ::fchmod(file.number(), modeOf(path)) == 0 && writeAll(file.number(), bytes) &&
                         ::fsync(file.number()) == 0 && file.close() && ::rename(temporary.c_str(), path.c_str()) == 0;
    if (written)
        return {};
    Error error = systemError(path, "cannot be written");
    ::unlink(temporary.c_str());
    return error;
}

} // namespace

Result<std::string> readFile(const std::string& path, std::size_t limit) {
    const auto file = OpenFile::open(path, limit);
    if (!file)
        return file.error();
    // What is read counts, not what was promised: the file may shrink or grow meanwhile.
    std::string bytes(file->size(), '\0');
    const auto filled = file->read(bytes.data(), bytes.size(), 0);
    if (!filled)
        return filled.error();
    bytes.resize(*filled);
    return bytes;
}

Result<void> writeFile(const std::string& path, std::string_view bytes) {
    std::string place = path;
    for (int links = 0; links <= maxLinks; ++links) {
        const std::optional<std::string> link = linkAt(place);
        if (!link) {
            struct stat status {};
            const bool isThere = ::stat(place.c_str(), &status) == 0;
            return isThere && !S_ISREG(status.st_mode) ? writeThrough(place, bytes) : replace(place, bytes);
        }
        const std::string folder = folderOf(place);
        if (isOfProcesses(folder))
            return writeOpened(place, bytes);
        place = link->starts_with('/') ? *link : folder + *link;
    }
    errno = ELOOP;
    return systemError(path, "cannot be written");
}

} // namespace Runtime
