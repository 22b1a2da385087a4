// Runtime/internal/NameMap.h
// Hash maps whose keys come from files. Their hashes have a seed, because someone could make a file whose keys all have
// the same hash in the standard library.
// Threads: as the standard containers; processSeed() and the hash: any.
#pragma once

#include "Runtime/internal/Hash.h"
#include <atomic>
#include <cstddef>
#include <cstdint>
#include <string>
#include <string_view>
#include <sys/auxv.h>
#include <unordered_map>

namespace Runtime {

// A random number of this process, from the bytes that the kernel gives every process.
[[nodiscard]] inline std::uint64_t processSeed() noexcept {
    // All threads compute the same number, so they need no lock, which a forked child could inherit locked.
    static constinit std::atomic<std::uint64_t> kept{0};
    if (const std::uint64_t seed = kept.load(std::memory_order_relaxed); seed != 0)
        return seed;
    // NOLINTNEXTLINE(performance-no-int-to-ptr): the kernel gives the address as a number
    const auto* const random = reinterpret_cast<const char*>(::getauxval(AT_RANDOM));
    const std::uint64_t seed = random == nullptr
                                   ? reinterpret_cast<std::uintptr_t>(&::getauxval) // a random address (ASLR)
                                   : mixed(loadLittle<std::uint64_t>(random) ^ hashSpread,
                                           loadLittle<std::uint64_t>(random + sizeof(std::uint64_t)));
    kept.store(seed, std::memory_order_relaxed);
    return seed;
}

// Not noexcept: libstdc++ then keeps each hash instead of computing it again while it searches.
struct SeededHash {
    std::size_t operator()(std::string_view name) const { return hashBytes(name, processSeed()); }
};

// Its order differs in each process, so nothing may depend on it.
template <class Value, class Name = std::string> using NameMap = std::unordered_map<Name, Value, SeededHash>;

} // namespace Runtime
