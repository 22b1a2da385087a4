// StringTables/PercentRange.h
// The part of a text that contains all its percent signs, so that a formatter need not search the whole text.
// Threads: plain values.
#pragma once

#include "Runtime/Export.h" // reports a compiler mode older than C++20
#include <algorithm>
#include <cstddef>
#include <cstdint>
#include <string_view>

namespace StringTables {

// All percent signs of the text are in the bytes from begin() up to, but not including, end(text).
class PercentRange {
public:
    // The whole text.
    constexpr PercentRange() noexcept = default;
    // The smallest range; for a text of 65,535 bytes or more, the whole text.
    static constexpr PercentRange of(std::string_view text) noexcept {
        if (text.size() >= toTheEnd)
            return {};
        const std::size_t first = std::min(text.find('%'), text.size());
        const std::size_t last = text.rfind('%');
        const std::size_t end = last == text.npos ? text.size() : last + 1;
        return PercentRange(static_cast<std::uint32_t>(first << 16 | end));
    }

    constexpr std::size_t begin() const noexcept { return packed_ >> 16; }
    constexpr std::size_t end(std::string_view text) const noexcept {
        const std::size_t end = packed_ & toTheEnd;
        return end == toTheEnd ? text.size() : end;
    }

    // Both ends in one number, at most `largestPacked`, so that a caller has numbers left for other states.
    constexpr std::uint32_t packed() const noexcept { return packed_; }
    static constexpr PercentRange unpacked(std::uint32_t packed) noexcept { return PercentRange(packed); }
    static constexpr std::uint32_t largestPacked = 0xFFFE'FFFF;

private:
    static constexpr std::uint32_t toTheEnd = 0xFFFF;

    constexpr explicit PercentRange(std::uint32_t packed) noexcept : packed_(packed) {}

    std::uint32_t packed_ = toTheEnd; // the beginning in the upper half, the end in the lower
};

} // namespace StringTables
