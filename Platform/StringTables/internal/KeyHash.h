// StringTables/internal/KeyHash.h
// The hash function for keys in compiled tables and generated code.
#pragma once

#include "StringTables/internal/Hash.h"

namespace StringTables {

// Hashes are stored in files and generated code: a change of the function needs a new index mark (CompiledIndex.h).
// Generated code with outdated hashes still works but is slower, because a failed lookup hashes the key again.
[[nodiscard]] inline std::uint64_t keyHash(std::string_view key) noexcept {
    return internal::hashBytes(key, internal::hashSpread);
}

} // namespace StringTables
