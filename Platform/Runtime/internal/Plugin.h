// Runtime/internal/Plugin.h
// Parts of the library that most processes never need, and whose own libraries cost more to load than everything else
// does together, lie in plug-ins. One is opened when its service is first asked for.
#pragma once

#include "Runtime/internal/Result.h"

namespace Runtime {

// Opens the plug-in `file` ("lumora-intl.so") from the plug-in folder (LUMORA_PLUGIN_FOLDER, with the version in its name) beside the shared object that holds this code
// and returns the address of its exported function `symbol`. Nothing is searched elsewhere, whatever the process's
// directory or environment. Stays open until the process ends. Errors: the plug-in is absent, cannot be loaded, or
// has no such function. Any thread; callers keep the answer, but no error that is passing. For want of memory
// std::bad_alloc is thrown.
[[nodiscard]] Result<void*> pluginSymbol(const char* file, const char* symbol);

} // namespace Runtime
