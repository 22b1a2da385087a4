#include "Runtime/internal/OpenFile.h"

#include "Runtime/internal/RealPath.h"
#include "Runtime/internal/SystemError.h"
#include <cerrno>
#include <fcntl.h>
#include <linux/openat2.h>
#include <sys/stat.h>
#include <sys/syscall.h>
#include <unistd.h>

namespace Runtime {

namespace {

// Without O_NONBLOCK, opening a pipe would wait for its writer.
constexpr int openFlags = O_RDONLY | O_CLOEXEC | O_NONBLOCK;

constexpr int leadsOut = EXDEV; // the errno that openInside() sets, like openat2() with RESOLVE_BENEATH

// Fails with ELOOP if there is a link on the path.
int openWithoutLinks(const std::string& path, int flags) noexcept {
    open_how how{};
    how.flags = static_cast<__u64>(flags);
    how.resolve = RESOLVE_NO_SYMLINKS;
    return static_cast<int>(::syscall(SYS_openat2, AT_FDCWD, path.c_str(), &how, sizeof how));
}

// Opens what is at `path`. Negative with errno on failure: `leadsOut` if a link leads out of `folder`, unless that is
// empty.
int openInside(const std::string& path, std::string_view folder, int flags) {
    if (path.find('\0') != path.npos) { // the system would read only the part before the NUL
        errno = ENOENT;
        return -1;
    }
    if (folder.empty())
        return ::open(path.c_str(), flags);
    const int descriptor = openWithoutLinks(path, flags);
    const bool hasLinks = descriptor < 0 && errno == ELOOP;
    const bool isUnknownCall = descriptor < 0 && (errno == ENOSYS || errno == EPERM); // old kernels, some containers
    if (!hasLinks && !isUnknownCall)
        return descriptor;
    const std::string real = realPath(path);
    if (real.empty())
        return -1;
    const std::string realFolder = realPath(std::string(folder));
    if (realFolder.empty())
        return -1;
    if (real.starts_with(realFolder + "/"))
        return ::open(real.c_str(), flags);
    errno = leadsOut;
    return -1;
}

} // namespace

Result<OpenFile> OpenFile::open(const std::string& path, std::size_t limit, std::string_view folder) {
    OpenFile file(path);
    file.descriptor_ = Descriptor(openInside(path, folder, openFlags));
    // A folder on the path may have been replaced and its files removed while the path was followed.
    if (file.descriptor_.number() < 0 && errno == ENOENT)
        file.descriptor_ = Descriptor(openInside(path, folder, openFlags));
    if (file.descriptor_.number() < 0 && errno == leadsOut)
        return file.error("is reached by a link that leads out of " + std::string(folder));
    struct stat status {};
    if (file.descriptor_.number() < 0 || ::fstat(file.descriptor_.number(), &status) != 0)
        return systemError(path, "cannot be read");
    if (!S_ISREG(status.st_mode))
        return file.error("is not a regular file");
    if (static_cast<std::uintmax_t>(status.st_size) > limit)
        return file.error("is larger than " + std::to_string(limit) + " bytes");
    file.identity_ = {.device = status.st_dev,
                      .inode = status.st_ino,
                      .size = static_cast<std::size_t>(status.st_size),
                      .seconds = status.st_mtim.tv_sec,
                      .nanoseconds = status.st_mtim.tv_nsec};
    return file;
}

Result<std::size_t> OpenFile::read(void* out, std::size_t size, std::uint64_t offset) const {
    std::size_t filled = 0;
    while (filled < size) {
        const ssize_t count = ::pread(descriptor_.number(), static_cast<char*>(out) + filled, size - filled,
                                      static_cast<off_t>(offset + filled));
        if (count < 0 && errno != EINTR)
            return systemError(path_, "cannot be read");
        if (count == 0)
            break;
        if (count > 0)
            filled += static_cast<std::size_t>(count);
    }
    return filled;
}

Result<void> OpenFile::exists(const std::string& path, std::string_view folder) {
    if (Descriptor(openInside(path, folder, O_PATH | O_CLOEXEC)).number() < 0)
        return systemError(path, "cannot be read");
    return {};
}

} // namespace Runtime
