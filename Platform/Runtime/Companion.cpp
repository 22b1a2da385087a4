#include "Runtime/Companion.h"

#include "Runtime/CodeLocation.h"
#include "Runtime/Memory.h"
#include <dlfcn.h>

namespace Runtime {

void* companionSymbol(const char* file, const char* symbol) {
    static constexpr char here = 0;
    const std::string path = codeLocation(&here).directory + "/lumora/" + file;
    void* library = ::dlopen(path.c_str(), RTLD_NOW | RTLD_LOCAL);
    if (library == nullptr) { // the dynamic linker gives its reasons in words only, and not always the right ones
        demandMemory();
        library = ::dlopen(path.c_str(), RTLD_NOW | RTLD_LOCAL);
    }
    return library == nullptr ? nullptr : ::dlsym(library, symbol);
}

} // namespace Runtime
