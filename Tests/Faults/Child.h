// Tests/Faults/Child.h
// Runs a test case in a child process.
#pragma once

#include <cstdio>
#include <exception>
#include <string>
#include <sys/wait.h>
#include <unistd.h>

namespace Child {

inline constexpr int thrown = 100;

// The result of `run()`, a number below 100, in a child process; `thrown` for an exception, 200 plus the signal number
// if a signal ended it.
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
