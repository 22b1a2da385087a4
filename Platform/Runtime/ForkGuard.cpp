#include "Runtime/internal/ForkGuard.h"

#include "Runtime/OnceSlot.h"
#include <new>
#include <pthread.h>

namespace Runtime {

namespace {

// Guards hold this lock shared, fork() exclusively.
constinit pthread_rwlock_t forking = PTHREAD_RWLOCK_INITIALIZER;

void beforeFork() noexcept {
    ::pthread_rwlock_wrlock(&forking);
}
void afterForkInParent() noexcept {
    ::pthread_rwlock_unlock(&forking);
}
// The lock does not know the child's thread as its owner, so the child cannot unlock it.
void afterForkInChild() noexcept {
    forking = PTHREAD_RWLOCK_INITIALIZER;
}

} // namespace

ForkGuard::ForkGuard() {
    static constinit OnceSlot<bool> isRegistered;
    isRegistered.get([] {
        // This call waits for a running fork(), which has not called beforeFork() and so would not wait for a guard.
        if (::pthread_atfork(&beforeFork, &afterForkInParent, &afterForkInChild) != 0)
            throw std::bad_alloc();
        return true;
    });
    ::pthread_rwlock_rdlock(&forking);
}

ForkGuard::~ForkGuard() {
    ::pthread_rwlock_unlock(&forking);
}

} // namespace Runtime
