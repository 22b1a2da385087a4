// Runtime/internal/Descriptor.h
// RAII owner of a file descriptor.
// Threads: as thread-safe as the raw descriptor.
#pragma once

#include <unistd.h>
#include <utility>

namespace Runtime {

class Descriptor {
public:
    // A negative number means no file.
    explicit Descriptor(int number) noexcept : number_(number) {}
    Descriptor(Descriptor&& other) noexcept : number_(std::exchange(other.number_, -1)) {}
    Descriptor& operator=(Descriptor&& other) noexcept {
        std::swap(number_, other.number_);
        return *this;
    }
    ~Descriptor() {
        if (number_ >= 0)
            ::close(number_);
    }
    int number() const noexcept { return number_; }
    // Closes now, for writers that must detect a failed close. False on failure.
    bool close() noexcept { return ::close(std::exchange(number_, -1)) == 0; }

private:
    int number_;
};

} // namespace Runtime
