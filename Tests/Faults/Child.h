// Tests/Faults/Child.h
// Runs test cases in child processes.
#pragma once

#include <cstdio>
#include <exception>
#include <string>
#include <sys/wait.h>
#include <unistd.h>

namespace Child {

inline constexpr int thrown = 100;

// How often firstFailure() runs a case, because some faults show only with certain timings or limits. Fewer times under
// a sanitizer, which makes a fork take ten times as long.
#if defined(__SANITIZE_ADDRESS__) || defined(__SANITIZE_THREAD__)
inline constexpr int repetitions = 20;
#else
inline constexpr int repetitions = 200;
#endif

// The result of `run()`, a number below 100, in a child process; `thrown` for an exception or if there is no child
// process, 200 plus the signal number if a signal ended it.
template <class Run> int exitOf(Run run) {
    std::fflush(nullptr);
    const pid_t child = ::fork();
    if (child < 0) {
        std::perror("fork");
        return thrown;
    }
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

// The first result other than 0 of up to `repetitions` children that call `run(repetition)`; 0 if there is none.
template <class Run> int firstFailure(Run run) {
    int code = 0;
    for (int i = 0; i < repetitions && code == 0; ++i)
        if (code = exitOf([&] { return run(i); }); code != 0)
            std::fprintf(stderr, "repetition %d failed\n", i);
    return code;
}

} // namespace Child
