// Runtime/internal/Result.h
// The result of an operation that can fail: a value, or the error that stopped it.
// Threads: plain values. Ownership: a Result owns what it holds.
#pragma once

#include <cerrno>
#include <cstddef> // std::size_t
#include <optional>
#include <string>
#include <utility> // std::move
#include <variant>

namespace Runtime {

// What went wrong and where. `file` is empty when the input has no name. `line` and `column` count from 1; 0 means
// unknown or not applicable.
struct Error {
    std::string message{};
    std::string file{};
    std::size_t line = 0;
    std::size_t column = 0;
    int cause = 0; // errno of the failed system call, or 0

    // Whether a retry may succeed: memory or descriptors ran out, a signal interrupted the call, or the device failed.
    bool isTransient() const noexcept {
        return cause == ENOMEM || cause == EMFILE || cause == ENFILE || cause == EINTR || cause == EIO;
    }
    // "file:line:column", with the parts that are known.
    std::string place() const {
        std::string out = file;
        for (const std::size_t number : {line, line != 0 ? column : 0})
            if (number != 0)
                out.append(out.empty() ? "" : ":").append(std::to_string(number));
        return out;
    }
    // "file:line:column: message", with the parts that are known.
    std::string text() const {
        const std::string where = place();
        return where.empty() ? message : where + ": " + message;
    }
};

// A T, or the Error that prevented it.
template <class T> class [[nodiscard]] Result {
public:
    Result(T value) : state_(std::in_place_index<0>, std::move(value)) {}
    Result(Error error) : state_(std::in_place_index<1>, std::move(error)) {}

    explicit operator bool() const noexcept { return state_.index() == 0; }
    // Only while the result holds a value.
    T& operator*() & noexcept { return *std::get_if<0>(&state_); }
    const T& operator*() const& noexcept { return *std::get_if<0>(&state_); }
    T&& operator*() && noexcept { return std::move(*std::get_if<0>(&state_)); }
    T* operator->() noexcept { return std::get_if<0>(&state_); }
    const T* operator->() const noexcept { return std::get_if<0>(&state_); }
    // Only while the result holds an error.
    Error& error() noexcept { return *std::get_if<1>(&state_); }
    const Error& error() const noexcept { return *std::get_if<1>(&state_); }

private:
    std::variant<T, Error> state_;
};

// Success, or the error.
template <> class [[nodiscard]] Result<void> {
public:
    Result() = default;
    Result(Error error) : error_(std::move(error)) {}

    explicit operator bool() const noexcept { return !error_; }
    Error& error() noexcept { return *error_; }
    const Error& error() const noexcept { return *error_; }

private:
    std::optional<Error> error_;
};

} // namespace Runtime
