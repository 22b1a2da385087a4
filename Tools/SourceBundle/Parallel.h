// SourceBundle/Parallel.h
// Runs independent steps on all processors.
#pragma once

#include <algorithm>
#include <atomic>
#include <cstddef>
#include <exception>
#include <mutex>
#include <system_error>
#include <thread>
#include <vector>

namespace SourceBundle {

// Calls step(0) to step(count - 1), several at a time. After an exception the remaining steps are skipped, and the
// first exception is rethrown when all threads have stopped.
template <class Step> void inParallel(std::size_t count, const Step& step) {
    std::atomic<std::size_t> next{0};
    std::mutex lock;
    std::exception_ptr failure;
    const auto work = [&] {
        try {
            for (std::size_t i = next++; i < count; i = next++)
                step(i);
        } catch (...) {
            next = count;
            const std::lock_guard guard(lock);
            if (!failure)
                failure = std::current_exception();
        }
    };
    {
        const std::size_t threads = std::min<std::size_t>(std::max(std::thread::hardware_concurrency(), 1U), count);
        std::vector<std::jthread> helpers;
        try {
            for (std::size_t i = 1; i < threads; ++i)
                helpers.emplace_back(work);
        } catch (const std::system_error&) { // no resources for more threads: those that run do all steps
        }
        work();
    }
    if (failure)
        std::rethrow_exception(failure);
}

} // namespace SourceBundle
