// Runtime/internal/Descriptor.h
// RAII owner of a file descriptor.
// Threads: number() and write() from any; close() and moves need exclusive access.
#pragma once

#include <cerrno>
#include <cstddef>
#include <string_view>
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
    // Writes all bytes. False on failure, with errno.
    bool write(std::string_view bytes) const noexcept {
        while (!bytes.empty()) {
            const ssize_t written = ::write(number_, bytes.data(), bytes.size());
            if (written < 0 && errno != EINTR)
                return false;
            if (written > 0)
                bytes.remove_prefix(static_cast<std::size_t>(written));
        }
        return true;
    }
    // Closes now, for writers that must detect a failed close. False on failure.
    bool close() noexcept { return ::close(std::exchange(number_, -1)) == 0; }

private:
    int number_;
};

} // namespace Runtime
