#include "AssetCatalog/Mapping.h"

#include <cerrno>
#include <cstring>
#include <fcntl.h>
#include <sys/mman.h>
#include <sys/stat.h>
#include <unistd.h>

namespace AssetCatalog {

namespace {

Runtime::Result<Mapping> failure(const std::string& path, std::string reason) {
    return Runtime::Error{.message = std::move(reason), .file = path};
}
Runtime::Result<Mapping> systemFailure(const std::string& path) {
    return failure(path, std::string("cannot be read: ") + std::strerror(errno));
}

} // namespace

Runtime::Result<Mapping> Mapping::open(const std::string& path, std::size_t limit) {
    // Without O_NONBLOCK the opening of a pipe would wait for its writer.
    const int file = ::open(path.c_str(), O_RDONLY | O_CLOEXEC | O_NONBLOCK);
    if (file < 0)
        return systemFailure(path);
    auto mapped = [&]() -> Runtime::Result<Mapping> {
        struct stat status {};
        if (::fstat(file, &status) != 0)
            return systemFailure(path);
        if (!S_ISREG(status.st_mode))
            return failure(path, "is not a regular file");
        if (static_cast<std::uintmax_t>(status.st_size) > limit)
            return failure(path, "is larger than " + std::to_string(limit) + " bytes");
        const auto size = static_cast<std::size_t>(status.st_size);
        if (size == 0)
            return Mapping(); // nothing can be mapped of an empty file
        void* start = ::mmap(nullptr, size, PROT_READ, MAP_PRIVATE, file, 0);
        if (start == MAP_FAILED)
            return systemFailure(path);
        return Mapping({static_cast<const std::uint8_t*>(start), size});
    }();
    ::close(file);
    return mapped;
}

Mapping::~Mapping() {
    if (!bytes_.empty())
        ::munmap(const_cast<std::uint8_t*>(bytes_.data()), bytes_.size());
}

} // namespace AssetCatalog
