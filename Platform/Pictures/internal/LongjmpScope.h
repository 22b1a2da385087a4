// Pictures/internal/LongjmpScope.h
// Error handling for C libraries whose error callback must not return; internal.
#pragma once

#include <csetjmp>

namespace Pictures {

// fail() jumps out of the step that attempt() runs. The stack is not unwound, so a step must not have local objects
// with destructors or change local variables of its caller.
class LongjmpScope {
public:
    // False when the step failed.
    template <class Step> bool attempt(Step step) {
        if (setjmp(stepStart_) != 0) // NOLINT(cert-err52-cpp): exceptions must not pass through C frames
            return false;
        step();
        return true;
    }
    [[noreturn]] void fail() { std::longjmp(stepStart_, 1); } // NOLINT(cert-err52-cpp): as above

private:
    std::jmp_buf stepStart_{};
};

} // namespace Pictures
