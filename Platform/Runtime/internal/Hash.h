// Runtime/internal/Hash.h
// A fast 64-bit hash of bytes; the same on every machine. Not for cryptography.
// Threads: any; no state.
#pragma once

#include <bit>
#include <cstddef>
#include <cstdint>
#include <cstring>
#include <string_view>

namespace Runtime {

// Reads a little-endian number at any address.
template <class Number> Number loadLittle(const char* from) noexcept {
    Number number;
    std::memcpy(&number, from, sizeof number);
    if constexpr (std::endian::native == std::endian::big) {
        if constexpr (sizeof number == 8)
            number = __builtin_bswap64(number);
        else if constexpr (sizeof number == 4)
            number = __builtin_bswap32(number);
        else if constexpr (sizeof number == 2)
            number = __builtin_bswap16(number);
    }
    return number;
}

inline constexpr std::uint64_t hashSpread = 0x9E3779B97F4A7C15; // 2^64 divided by the golden ratio

// XOR of the two halves of the 128-bit product.
inline std::uint64_t mixed(std::uint64_t a, std::uint64_t b) noexcept {
    __extension__ using Wide = unsigned __int128;
    const Wide product = static_cast<Wide>(a) * b;
    return static_cast<std::uint64_t>(product) ^ static_cast<std::uint64_t>(product >> 64);
}

// The seed masks both factors of every product that contains bytes of the text, so colliding keys cannot be made
// without knowing the seed.
inline std::uint64_t hashBytes(std::string_view bytes, std::uint64_t seed) noexcept {
    const std::uint64_t second = seed * hashSpread ^ hashSpread;
    std::uint64_t first = seed;
    const char* at = bytes.data();
    std::size_t left = bytes.size();
    for (; left > 16; at += 16, left -= 16)
        first = mixed(loadLittle<std::uint64_t>(at) ^ first, loadLittle<std::uint64_t>(at + 8) ^ second);
    std::uint64_t a = 0, b = 0;
    if (left >= 8) {
        a = loadLittle<std::uint64_t>(at);
        b = loadLittle<std::uint64_t>(at + left - 8);
    } else if (left >= 4) {
        a = loadLittle<std::uint32_t>(at);
        b = loadLittle<std::uint32_t>(at + left - 4);
    } else if (left > 0) {
        const auto byte = [at](std::size_t i) { return static_cast<std::uint64_t>(static_cast<unsigned char>(at[i])); };
        a = byte(0) << 16 | byte(left / 2) << 8 | byte(left - 1);
    }
    return mixed(mixed(a ^ first, b ^ second) ^ bytes.size(), hashSpread);
}

// The hash of a name, used for keys in compiled tables, in generated code and in a KeyedStore. Compiled tables contain
// it, so a change needs a new version of their index. Generated code with outdated hashes only takes longer
// to find a text.
[[nodiscard]] inline std::uint64_t keyHash(std::string_view key) noexcept {
    return hashBytes(key, hashSpread);
}

} // namespace Runtime
