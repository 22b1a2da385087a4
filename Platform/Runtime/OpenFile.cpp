#include "Runtime/internal/OpenFile.h"

#include <cerrno>
#include <cstring>
#include <fcntl.h>
#include <sys/stat.h>
#include <unistd.h>

namespace Runtime {

namespace {

Error cannotBeRead(const OpenFile& file) {
    const int cause = errno;
    Error error = file.error(std::string("cannot be read: ") + std::strerror(cause));
    error.cause = cause;
    return error;
}

} // namespace

Result<OpenFile> OpenFile::open(const std::string& path, std::size_t limit) {
    OpenFile file(path);
    if (path.find('\0') != path.npos) { // the system would read only the part before the NUL
        errno = ENOENT;
        return cannotBeRead(file);
    }
    // Without O_NONBLOCK, opening a pipe would block until a writer opens it.
    static constexpr int flags = O_RDONLY | O_CLOEXEC | O_NONBLOCK;
    file.descriptor_ = Descriptor(::open(path.c_str(), flags));
    // Retry once: a folder on the path may have been replaced, and the old one emptied, while the path was resolved.
    if (file.descriptor_.number() < 0 && errno == ENOENT)
        file.descriptor_ = Descriptor(::open(path.c_str(), flags));
    struct stat status {};
    if (file.descriptor_.number() < 0 || ::fstat(file.descriptor_.number(), &status) != 0)
        return cannotBeRead(file);
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
            return cannotBeRead(*this);
        if (count == 0)
            break;
        if (count > 0)
            filled += static_cast<std::size_t>(count);
    }
    return filled;
}

} // namespace Runtime
