// Runtime/internal/Plugin.h
// Plug-ins: parts of the library that most processes never need and whose dependencies are expensive to load. Each is
// opened at its first use.
#pragma once

#include "Runtime/internal/ForkGuard.h"
#include "Runtime/internal/Result.h"
#include <string>

namespace Runtime {

// Opens the plug-in `file` ("lumora-intl.so") from the plug-in folder beside the library or program that contains this
// code, and returns the address of its exported function `symbol`. No other place is searched, whatever the current
// directory or environment; if that folder is unknown, because the library or program was removed or cannot be reached,
// the plug-in is not found. The plug-in stays open until the process ends. The guard is needed because the dynamic
// linker takes locks. Errors: the plug-in is absent, cannot be loaded, or has no such function; transient errors when
// descriptors, memory or address space ran out. Throws std::bad_alloc. Any thread.
[[nodiscard]] Result<void*> pluginSymbol(const ForkGuard& guard, const char* file, const char* symbol);
// The same for a plug-in in another folder.
[[nodiscard]] Result<void*> pluginSymbol(const ForkGuard& guard, const std::string& folder, const char* file,
                                         const char* symbol);

} // namespace Runtime
