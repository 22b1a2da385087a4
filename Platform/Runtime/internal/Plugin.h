// Runtime/internal/Plugin.h
// Plug-ins: parts of the library that most processes never need, and whose own libraries cost more to load than
// everything else together. One is opened when it is first needed.
#pragma once

#include "Runtime/internal/ForkGuard.h"
#include "Runtime/internal/Result.h"

namespace Runtime {

// Opens the plug-in `file` ("lumora-intl.so") from the plug-in folder beside the shared object that holds this code
// and returns the address of its exported function `symbol`. Nothing is searched elsewhere, whatever the process's
// directory or environment. It stays open until the process ends. The guard: the dynamic linker has locks.
// Errors: the plug-in is absent, cannot be loaded, or has no such function; transient ones where descriptors, memory or
// address space ran out. Throws std::bad_alloc. Any thread.
[[nodiscard]] Result<void*> pluginSymbol(const ForkGuard& guard, const char* file, const char* symbol);

} // namespace Runtime
