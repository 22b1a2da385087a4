// Foundation/internal/Passing.h
// What is missing for the moment must not be taken for missing and kept so; internal.
#pragma once

#include "Runtime/Result.h"
#include <system_error>

namespace Foundation::detail {

inline void throwIfPassing(const Runtime::Error& error) {
    if (error.isPassing())
        throw std::system_error(error.cause, std::generic_category());
}

} // namespace Foundation::detail
