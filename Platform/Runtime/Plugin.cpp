#include "Runtime/internal/Plugin.h"

#include "Runtime/internal/CodeLocation.h"
#include "Runtime/internal/Memory.h"
#include "Runtime/internal/OpenFile.h"
#include <cstddef>
#include <dlfcn.h>
#include <limits>

namespace Runtime {

Result<void*> pluginSymbol(const char* file, const char* symbol) {
    static constexpr char here = 0;
    const std::string path = codeLocation(&here).directory + "/" LUMORA_PLUGIN_FOLDER "/" + file;
    // Other threads take and give back descriptors meanwhile, so one look after a failure does not tell its reason.
    for (int tries = 0; tries < 3; ++tries) {
        if (void* library = ::dlopen(path.c_str(), RTLD_NOW | RTLD_LOCAL)) {
            void* const found = ::dlsym(library, symbol);
            return found != nullptr ? Result<void*>(found)
                                    : Error{.message = std::string("has no function ") + symbol, .file = path};
        }
        // The dynamic linker gives its reasons in words only, and not always the right ones.
        demandMemory();
        if (const auto opened = OpenFile::open(path, std::numeric_limits<std::size_t>::max()); !opened)
            return opened.error();
    }
    return Error{.message = "cannot be loaded", .file = path};
}

} // namespace Runtime
