// Runtime/internal/ForkGuard.h
// Delays fork() while a thread is in code that takes locks of its own, such as ICU or the dynamic linker. Otherwise the
// child could inherit a lock held by a thread that does not exist in it.
#pragma once

namespace Runtime {

// While a guard exists, fork() in other threads waits; a new guard waits while a fork() is running. Any number of
// threads may have a guard at the same time, but each at most one, and a thread with a guard must not call fork(). The
// constructor may throw std::bad_alloc.
class ForkGuard {
public:
    ForkGuard();
    ~ForkGuard();
    ForkGuard(const ForkGuard&) = delete;
    ForkGuard& operator=(const ForkGuard&) = delete;
};

} // namespace Runtime
