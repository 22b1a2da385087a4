// Runtime/Export.h
// Marks what the shared library shows to the world; everything else is compiled hidden. Included first by every public
// header, so that a compiler for an older C++ says what is missing and nothing else.
#pragma once

#if defined(__cplusplus) && __cplusplus < 202002L
#error "these headers need C++20: compile with -std=c++20 or later"
#include <lumora-needs-c++20> // not there: ends the compilation
#endif

#define LUMORA_EXPORT __attribute__((visibility("default")))
