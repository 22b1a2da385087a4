// Runtime/internal/CodeLocation.h
// Finds the file that a piece of loaded code comes from.
// Text: paths as the file system has them, any bytes. Threads: any.
#pragma once

#include <string>

namespace Runtime {

struct CodeLocation {
    std::string directory; // absolute, symbolic links resolved, without a trailing slash: "" for the root folder
    std::string name;      // the file's own name: "liblumora.so.1.0.0", "app"
    bool isMainProgram = false;
};

// The location of the shared object or program that contains `code`, the address of a function or static object. It
// does not depend on the current directory. It is CodeLocation{} when the address belongs to no loaded file, or the
// file cannot be found any more. Throws only std::bad_alloc.
[[nodiscard]] CodeLocation codeLocation(const void* code);
// The same for the running program.
[[nodiscard]] CodeLocation mainProgramLocation();

} // namespace Runtime
