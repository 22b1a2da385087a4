// Runtime/internal/Memory.h
// Probes for memory where an API does not report that it ran out.
// Threads: any; no state.
#pragma once

#include <cstddef>
#include <new>

namespace Runtime {

// Throws std::bad_alloc unless `size` bytes are free at the moment. What fails although they are did not fail for lack
// of memory.
inline void demandMemory(std::size_t size = std::size_t{1} << 16) {
    ::operator delete(::operator new(size)); // calls, not expressions, which a compiler may leave out
}

} // namespace Runtime
