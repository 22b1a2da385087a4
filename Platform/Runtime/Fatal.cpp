#include "Runtime/Fatal.h"

#include <cerrno>
#include <charconv>
#include <cstdlib>
#include <string>
#include <sys/uio.h>
#include <unistd.h>

namespace Runtime {

namespace {

iovec piece(std::string_view text) {
    return {const_cast<char*>(text.data()), text.size()}; // writev takes mutable pointers and does not write to them
}

} // namespace

void fatalError(std::string_view message, std::string_view file, std::uint32_t line) noexcept {
    char digits[10];
    const auto end = std::to_chars(digits, digits + sizeof digits, line).ptr;
    // One call without allocation: the report stays whole beside other threads' output and works when memory is gone.
    const iovec report[] = {piece("Fatal error: "),
                            piece(message),
                            piece(": file "),
                            piece(file),
                            piece(", line "),
                            piece({digits, static_cast<std::size_t>(end - digits)}),
                            piece("\n")};
    while (::writev(STDERR_FILENO, report, std::size(report)) < 0 && errno == EINTR) {
    }
    std::abort();
}

} // namespace Runtime
