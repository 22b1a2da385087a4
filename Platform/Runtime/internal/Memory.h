// Runtime/internal/Memory.h
// For what fails without saying whether it was for want of memory.
// Threads: any; no state.
#pragma once

#include <cstddef>
#include <new>

namespace Runtime {

// Throws std::bad_alloc while memory is out; otherwise what is called next finds some. What fails again after this did
// not fail for want of it.
inline void demandMemory() {
    constexpr std::size_t plenty = std::size_t{1} << 16;
    ::operator delete(::operator new(plenty)); // calls, not expressions, which a compiler may leave out
}

} // namespace Runtime
