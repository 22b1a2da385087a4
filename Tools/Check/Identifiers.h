// Check/Identifiers.h
// The identifiers of C and C++ code.
// Text: UTF-8; any bytes are taken. Threads: any; no state.
#pragma once

#include <functional>
#include <string_view>

namespace Check {

// Calls `visit(name, qualifier)` for every identifier outside of comments and literals; for `A::b` and `b`, the
// qualifier of b is A and the empty text. One pass over the code; code that ends within a literal is no error.
void forEachIdentifier(std::string_view code,
                       const std::function<void(std::string_view name, std::string_view qualifier)>& visit);

} // namespace Check
