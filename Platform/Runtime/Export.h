// Runtime/Export.h
// Marks what the shared library exports; everything else has hidden visibility. Every public C++ header includes this
// one before any other code, so that a compiler in an older C++ mode reports one clear error and stops.
#pragma once

#if defined(__cplusplus) && __cplusplus < 202002L
#error "these headers need C++20: compile with -std=c++20 or later"
#include <lumora-needs-c++20> // does not exist: ends the compilation
#endif

#define LUMORA_EXPORT __attribute__((visibility("default")))
