// Runtime/Fatal.h
// The one place where the process is stopped on purpose.
#pragma once

#include "Runtime/Export.h"
#include <cstdint>
#include <string_view>

namespace Runtime {

// Writes the line "Fatal error: MESSAGE: file FILE, line LINE" to standard error and ends the process by SIGABRT.
// `message` and `file` are UTF-8. Any thread.
[[noreturn]] LUMORA_EXPORT void fatalError(std::string_view message, std::string_view file,
                                           std::uint32_t line) noexcept;

} // namespace Runtime
