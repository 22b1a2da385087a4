// StringTables/internal/KeyHash.h
// The hash of a key in compiled tables and in generated code.
#pragma once

#include "StringTables/internal/Hash.h"

namespace StringTables {

// Written down in files and in the code of modules: a change needs a new mark of the index (CompiledIndex.h). Generated
// code of another version only costs time, as a look-up that fails with a given hash hashes the key itself.
[[nodiscard]] inline std::uint64_t keyHash(std::string_view key) noexcept {
    return internal::hashBytes(key, internal::hashSpread);
}

} // namespace StringTables
