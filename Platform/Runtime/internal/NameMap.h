// Runtime/internal/NameMap.h
// Hash maps whose keys come from files. Their hashes have a seed, because a file could be made whose keys all have the
// same hash of the standard library.
// Threads: as the standard containers; processSeed() and the hash: any.
#pragma once

#include "Runtime/internal/Hash.h"
#include <cstddef>
#include <cstdint>
#include <string>
#include <string_view>
#include <sys/auxv.h>
#include <unordered_map>

namespace Runtime {

// A random number of this process, from the bytes that the kernel gives every process.
[[nodiscard]] inline std::uint64_t processSeed() noexcept {
    static const std::uint64_t seed = [] {
        const auto* const random = reinterpret_cast<const char*>(::getauxval(AT_RANDOM));
        return random == nullptr ? reinterpret_cast<std::uintptr_t>(&::getauxval) // differs in each process, too
                                 : mixed(loadLittle<std::uint64_t>(random) ^ hashSpread,
                                         loadLittle<std::uint64_t>(random + sizeof(std::uint64_t)));
    }();
    return seed;
}

// Not noexcept: libstdc++ then keeps each hash instead of computing it again while it searches.
struct SeededHash {
    std::size_t operator()(std::string_view name) const { return hashBytes(name, processSeed()); }
};

// Its order differs in each process, so nothing may depend on it.
template <class Value, class Name = std::string> using NameMap = std::unordered_map<Name, Value, SeededHash>;

} // namespace Runtime
