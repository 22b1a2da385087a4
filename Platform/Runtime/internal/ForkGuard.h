// Runtime/internal/ForkGuard.h
// Keeps the process from being forked while a thread is in code with locks of its own, such as ICU or the dynamic
// linker: the child would find them held by a thread that it does not have.
#pragma once

namespace Runtime {

// While one lives, fork() waits in other threads, and the guards that they make wait for fork(). Threads: any number at
// the same time; not two on one thread. Throws std::bad_alloc.
class ForkGuard {
public:
    ForkGuard();
    ~ForkGuard();
    ForkGuard(const ForkGuard&) = delete;
    ForkGuard& operator=(const ForkGuard&) = delete;
};

} // namespace Runtime
