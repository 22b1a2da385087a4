// Runtime/internal/CodeLocation.h
// Finds the file that a piece of loaded code comes from.
// Text: paths as the file system has them, any bytes. Threads: any.
#pragma once

#include <string>

namespace Runtime {

struct CodeLocation {
    std::string directory; // absolute, symbolic links resolved, without a trailing slash
    std::string name;      // the file's own name: "liblumora.so.1.0.0", "app"
    bool isMainProgram = false;
};

// Of the shared object or program that holds `code`, the address of a function or object of static storage. The answer
// does not depend on the process's current directory. Empty texts when the address belongs to no loaded file.
// Throws nothing but std::bad_alloc.
[[nodiscard]] CodeLocation codeLocation(const void* code);
// Of the running program itself.
[[nodiscard]] CodeLocation mainProgramLocation();

} // namespace Runtime
