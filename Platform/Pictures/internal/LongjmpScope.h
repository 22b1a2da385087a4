// Pictures/internal/LongjmpScope.h
// For C libraries that report an error by calling a function which must not return; internal.
#pragma once

#include <csetjmp>

namespace Pictures {

// fail() jumps out of the step that attempt() runs. Frames of the library and of the step are left without being
// unwound, so a step has no local object with a destructor and changes no local variable of its caller.
class LongjmpScope {
public:
    // False when the step failed.
    template <class Step> bool attempt(Step step) {
        if (setjmp(stepStart_) != 0) // NOLINT(cert-err52-cpp): nothing may be thrown through frames of C
            return false;
        step();
        return true;
    }
    [[noreturn]] void fail() { std::longjmp(stepStart_, 1); } // NOLINT(cert-err52-cpp): as above

private:
    std::jmp_buf stepStart_{};
};

} // namespace Pictures
