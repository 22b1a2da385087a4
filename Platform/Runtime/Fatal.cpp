#include "Runtime/Fatal.h"

#include <algorithm>
#include <cerrno>
#include <charconv>
#include <cstdlib>
#include <sys/uio.h>
#include <unistd.h>

namespace Runtime {

namespace {

iovec piece(std::string_view text) {
    return {const_cast<char*>(text.data()), text.size()}; // writev takes mutable pointers and does not write to them
}

} // namespace

void fatalError(std::string_view message, std::string_view file, std::uint32_t line) noexcept {
    fatalError(std::initializer_list<std::string_view>{message}, file, line);
}

void fatalError(std::initializer_list<std::string_view> message, std::string_view file, std::uint32_t line,
                std::initializer_list<std::string_view> hint) noexcept {
    char digits[10]; // of the greatest `line`
    const auto end = std::to_chars(digits, digits + sizeof digits, line).ptr;
    // One system call, so that other threads' output does not split the report, and no allocation, so that the report
    // is written without free memory, too.
    constexpr std::size_t ownPieces = 7; // "Fatal error: ", the place in five pieces, the line break after the hint
    iovec report[2 * maxPieces + ownPieces] = {piece("Fatal error: ")};
    iovec* next = report + 1;
    const auto add = [&next](std::initializer_list<std::string_view> pieces) {
        next = std::transform(pieces.begin(), pieces.begin() + std::min(pieces.size(), maxPieces), next, piece);
    };
    add(message);
    for (const std::string_view text : {std::string_view(": file "), file, std::string_view(", line "),
                                        std::string_view(digits, end), std::string_view("\n")})
        *next++ = piece(text);
    if (hint.size() != 0) {
        add(hint);
        *next++ = piece("\n");
    }
    while (::writev(STDERR_FILENO, report, static_cast<int>(next - report)) < 0 && errno == EINTR) {
    }
    std::abort();
}

} // namespace Runtime
