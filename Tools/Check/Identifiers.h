// Check/Identifiers.h
// Finds the identifiers in C and C++ code.
// Text: UTF-8; any bytes are accepted. Threads: any; no state.
#pragma once

#include <functional>
#include <string_view>

namespace Check {

// Calls `visit(name, qualifier)` for every identifier and keyword outside of comments and literals. The qualifier of b
// is A in `A::b`; it is empty in `b`, `return ::b` and `A<T>::b`. One pass over the code; an unclosed literal is not an
// error.
void forEachIdentifier(std::string_view code,
                       const std::function<void(std::string_view name, std::string_view qualifier)>& visit);

} // namespace Check
