// Tests/Support/CollidingNames.h
// Names of ASCII letters and digits that have the same hash: many for each of three hash functions.
#pragma once

#include "Runtime/internal/Hash.h"
#include <algorithm>
#include <cctype>
#include <cstddef>
#include <cstdint>
#include <string>
#include <vector>

namespace CollidingNames {

inline std::string bytesOf(std::uint64_t word) {
    return {reinterpret_cast<const char*>(&word), sizeof word};
}
inline bool isAlphanumeric(const std::string& text) {
    return std::ranges::all_of(text, [](unsigned char byte) { return std::isalnum(byte) && byte < 0x80; });
}
inline constexpr const char* filler = "continue"; // any word of eight letters
// Eight bytes, a word for the hashes: "a0000001". At most 9,999,999.
inline std::string numbered(std::size_t number) {
    const std::string digits = std::to_string(number);
    return "a" + std::string(7 - digits.size(), '0') + digits;
}

// Names with the same Runtime::keyHash(). It multiplies two words at a time, each combined with a state. A first word
// that is equal to its state makes the product zero, whatever the second word is.
inline std::vector<std::string> inKeyHash(std::size_t count) {
    // The states as in Runtime::hashBytes().
    const std::uint64_t seed = Runtime::hashSpread, second = seed * Runtime::hashSpread ^ Runtime::hashSpread;
    std::string begin;
    for (std::size_t i = 0; begin.size() != 24 || !isAlphanumeric(begin); ++i) {
        begin = numbered(i) + filler;
        begin += bytesOf(Runtime::mixed(Runtime::loadLittle<std::uint64_t>(begin.data()) ^ seed,
                                        Runtime::loadLittle<std::uint64_t>(begin.data() + 8) ^ second));
    }
    std::vector<std::string> names;
    for (std::size_t i = 0; i < count; ++i)
        names.push_back(begin + numbered(i) + "end");
    return names;
}

// The length in bytes of each name of chained(): twelve pairs of words.
constexpr std::uint64_t chainedSize = std::uint64_t{12} * 16;

// Names with the same hash, at most 4,096, for a hash that takes a word at a time and begins with `state`.
// `step(state, word)` is the state after `word`; `wordFor(state, wanted)` is the word that changes `state` to `wanted`.
// For each pair of words there is another pair with the same final state, so 12 pairs make 2^12 names.
template <class Step, class WordFor>
std::vector<std::string> chained(std::uint64_t state, std::size_t count, Step step, WordFor wordFor) {
    const auto loaded = [](const std::string& word) { return Runtime::loadLittle<std::uint64_t>(word.data()); };
    std::vector<std::string> names = {""};
    while (names.size() < 4096) {
        const std::string first = numbered(0) + filler;
        const std::uint64_t wanted = step(step(state, loaded(first)), loaded(first.substr(8)));
        std::string other;
        for (std::size_t i = 1; !isAlphanumeric(other) || other.empty(); ++i)
            other = numbered(i) + bytesOf(wordFor(step(state, loaded(numbered(i))), wanted));
        // Each name is continued with both pairs.
        const std::size_t size = names.size();
        for (std::size_t i = 0; i < size; ++i) {
            names.push_back(names[i] + other);
            names[i] += first;
        }
        state = wanted;
    }
    names.resize(count);
    return names;
}

// The number whose product with the odd `number` is 1 modulo 2^64. Each step doubles the number of correct bits.
constexpr std::uint64_t inverse(std::uint64_t number) {
    std::uint64_t result = number;
    for (int i = 0; i < 6; ++i)
        result *= 2 - number * result;
    return result;
}

// Names with the same std::hash<std::string> in GCC's library, a MurmurHash2.
inline std::vector<std::string> inStandardHash(std::size_t count) {
    constexpr std::uint64_t factor = 0xC6A4A7935BD1E995, seed = 0xC70F6907;
    const auto folded = [](std::uint64_t value) { return value ^ value >> 47; };
    return chained(
        seed ^ chainedSize * factor, count,
        [&](std::uint64_t state, std::uint64_t word) { return (state ^ folded(word * factor) * factor) * factor; },
        [&](std::uint64_t state, std::uint64_t wanted) {
            return folded((wanted * inverse(factor) ^ state) * inverse(factor)) * inverse(factor);
        });
}

// Names of images with the same hash in a compiled catalog.
inline std::vector<std::string> inCatalogHash(std::size_t count) {
    const std::uint64_t spread = Runtime::hashSpread;
    const auto folded = [](std::uint64_t value) { return value ^ value >> 32; };
    return chained(
        chainedSize * spread, count,
        [&](std::uint64_t state, std::uint64_t word) { return (folded(state) ^ word) * spread; },
        [&](std::uint64_t state, std::uint64_t wanted) { return folded(state) ^ wanted * inverse(spread); });
}

} // namespace CollidingNames
