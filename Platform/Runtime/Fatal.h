// Runtime/Fatal.h
// Stops the process with a report. No other code aborts on purpose.
#pragma once

#include "Runtime/Export.h"
#include <cstddef> // std::size_t
#include <cstdint>
#include <initializer_list>
#include <string_view>

namespace Runtime {

// Writes the line "Fatal error: MESSAGE: file FILE, line LINE" to standard error and ends the process with SIGABRT.
// `message` and `file` are UTF-8. Any thread. Allocates nothing.
[[noreturn]] LUMORA_EXPORT void fatalError(std::string_view message, std::string_view file,
                                           std::uint32_t line) noexcept;
// The same with a message in at most maxPieces pieces, so that callers need not allocate to concatenate them. `hint`, a
// second line if it is not empty, has at most maxPieces pieces, too.
inline constexpr std::size_t maxPieces = 8;
[[noreturn]] LUMORA_EXPORT void fatalError(std::initializer_list<std::string_view> message, std::string_view file,
                                           std::uint32_t line,
                                           std::initializer_list<std::string_view> hint = {}) noexcept;

} // namespace Runtime
