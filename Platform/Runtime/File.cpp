#include "Runtime/File.h"

#include "Runtime/Descriptor.h"
#include "Runtime/OpenFile.h"
#include <cerrno>
#include <cstdio>
#include <cstdlib>
#include <cstring>
#include <fcntl.h>
#include <memory>
#include <sys/stat.h>
#include <unistd.h>
#include <utility>

namespace Runtime {

namespace {

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

// The file that a write to `path` means: what a link leads to.
std::string target(const std::string& path) {
    const std::unique_ptr<char, decltype(&std::free)> real(::realpath(path.c_str(), nullptr), &std::free);
    return real == nullptr ? path : std::string(real.get());
}

Result<void> writeThrough(const std::string& path, std::string_view bytes) {
    Descriptor file(::open(path.c_str(), O_WRONLY | O_CLOEXEC));
    if (file.number() < 0 || !writeAll(file.number(), bytes) || !file.close())
        return systemError(path, "cannot be written");
    return {};
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
    struct stat status {};
    const bool isThere = ::stat(path.c_str(), &status) == 0;
    return isThere && !S_ISREG(status.st_mode) ? writeThrough(path, bytes) : replace(target(path), bytes);
}

} // namespace Runtime
