// Fuzz/Require.h
// The check of every fuzzer.
#pragma once

#include <cstdlib>

// Stops the process if the condition does not hold, which the fuzzer reports.
inline void require(bool condition) {
    if (!condition)
        std::abort();
}
