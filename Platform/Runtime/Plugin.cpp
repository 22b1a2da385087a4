#include "Runtime/internal/Plugin.h"

#include "Runtime/internal/CodeLocation.h"
#include "Runtime/internal/Memory.h"
#include "Runtime/internal/OpenFile.h"
#include <cerrno>
#include <cstddef>
#include <dlfcn.h>
#include <limits>
#include <sys/mman.h>

namespace Runtime {

namespace {

// More than any plug-in needs with all its libraries.
constexpr std::size_t plentyOfAddresses = std::size_t{128} << 20;

bool hasAddressSpace() noexcept {
    void* const place =
        ::mmap(nullptr, plentyOfAddresses, PROT_NONE, MAP_PRIVATE | MAP_ANONYMOUS | MAP_NORESERVE, -1, 0);
    return place != MAP_FAILED && ::munmap(place, plentyOfAddresses) == 0;
}

Result<void*> symbolOf(void* library, const std::string& path, const char* symbol) {
    void* const found = ::dlsym(library, symbol);
    return found != nullptr ? Result<void*>(found)
                            : Error{.message = std::string("has no function ") + symbol, .file = path};
}

} // namespace

Result<void*> pluginSymbol(const ForkGuard& guard, const char* file, const char* symbol) {
    static constexpr char here = 0;
    const CodeLocation own = codeLocation(&here);
    if (own.name.empty())
        return Error{.message = "cannot be found: the folder of its library or program is unknown", .file = file};
    return pluginSymbol(guard, own.directory + "/" LUMORA_PLUGIN_FOLDER, file, symbol);
}

Result<void*> pluginSymbol(const ForkGuard&, const std::string& folder, const char* file, const char* symbol) {
    const std::string path = folder + "/" + file;
    // Other threads open and close files at the same time, so a single check after a failure may miss its cause.
    for (int tries = 0; tries < 3; ++tries) {
        if (void* library = ::dlopen(path.c_str(), RTLD_NOW | RTLD_LOCAL))
            return symbolOf(library, path, symbol);
        // dlerror() gives only text, which is sometimes misleading, so probe for the causes.
        demandMemory();
        if (!hasAddressSpace())
            return Error{.message = "cannot be loaded: no address space", .file = path, .cause = ENOMEM};
        if (const auto opened = OpenFile::open(path, std::numeric_limits<std::size_t>::max()); !opened)
            return opened.error();
    }
    return Error{.message = "cannot be loaded", .file = path};
}

} // namespace Runtime
