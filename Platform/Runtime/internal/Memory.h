// Runtime/internal/Memory.h
// Probes for memory where an API does not report that memory ran out.
// Threads: any; no state.
#pragma once

#include <cstddef>
#include <new>

namespace Runtime {

// Throws std::bad_alloc unless `size` bytes can be allocated now. If they can, a preceding failure probably had another
// reason.
inline void demandMemory(std::size_t size = std::size_t{1} << 16) {
    ::operator delete(::operator new(size)); // direct calls: a compiler may remove a new-delete pair
}

} // namespace Runtime
