#include "Compiler/Records.h"

#include <iterator>
#include <xxhash.h>

namespace Compiler {

std::string hex(std::uint64_t number) {
    char digits[16];
    const auto written = std::to_chars(std::begin(digits), std::end(digits), number, 16);
    const std::string text(digits, written.ptr);
    return std::string(16 - text.size(), '0') + text;
}

std::uint64_t hashOf(std::string_view bytes) noexcept {
    return XXH3_64bits(bytes.data(), bytes.size());
}

std::string longHashOf(std::string_view bytes) {
    const XXH128_hash_t hash = XXH3_128bits(bytes.data(), bytes.size());
    return hex(hash.high64) + hex(hash.low64);
}

} // namespace Compiler
