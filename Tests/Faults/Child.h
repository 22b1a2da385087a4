// Tests/Faults/Child.h
// A child process for one case.
#pragma once

#include <cstdio>
#include <exception>
#include <string>
#include <sys/wait.h>
#include <unistd.h>

namespace Child {

inline constexpr int thrown = 100;

// What `run()` gives, a number below 100, in a process of its own; `thrown` for an exception, or 200 and the signal
// that ended it.
template <class Run> int exitOf(Run run) {
    std::fflush(nullptr);
    const pid_t child = ::fork();
    if (child == 0) {
        int code = thrown;
        try {
            code = run();
        } catch (const std::exception& error) {
            std::fprintf(stderr, "thrown: %s\n", error.what());
        }
        ::_exit(code);
    }
    int status = 0;
    ::waitpid(child, &status, 0);
    return WIFEXITED(status) ? WEXITSTATUS(status) : 200 + WTERMSIG(status);
}

} // namespace Child
