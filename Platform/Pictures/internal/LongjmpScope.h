// Pictures/internal/LongjmpScope.h
// Work with C libraries that report a failure by calling a function which must not return; internal.
#pragma once

#include <csetjmp>

namespace Pictures {

// fail() leaves the step that is being taken and goes on behind it. What it leaves are the library's frames and the
// step's own, so a step holds nothing that would have to be destroyed and changes no local variable of its caller.
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
