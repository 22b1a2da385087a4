// StringTables/PercentRange.h
// The part of a text that contains all its percent signs, so that a formatter need not search the whole text.
// Threads: plain values.
#pragma once

#include "Runtime/Export.h" // C++20
#include <algorithm>
#include <cstddef>
#include <cstdint>
#include <string_view>

namespace StringTables {

// All percent signs of the text are in the bytes from begin() to end(text).
class PercentRange {
public:
    // The whole text.
    constexpr PercentRange() noexcept = default;
    // The smallest range; for a text of 64 KB or more, the whole text.
    static constexpr PercentRange of(std::string_view text) noexcept {
        if (text.size() >= toTheEnd)
            return {};
        const std::size_t first = std::min(text.find('%'), text.size());
        const std::size_t last = text.rfind('%');
        return {first, last == text.npos ? text.size() : last + 1};
    }

    constexpr std::size_t begin() const noexcept { return begin_; }
    constexpr std::size_t end(std::string_view text) const noexcept { return end_ == toTheEnd ? text.size() : end_; }

    // Both ends in one number, at most `largestPacked`.
    constexpr std::uint32_t packed() const noexcept { return std::uint32_t{begin_} << 16 | end_; }
    static constexpr PercentRange unpacked(std::uint32_t packed) noexcept { return {packed >> 16, packed & toTheEnd}; }
    static constexpr std::uint32_t largestPacked = 0xFFFE'FFFF;

private:
    static constexpr std::uint16_t toTheEnd = 0xFFFF;

    constexpr PercentRange(std::size_t begin, std::size_t end) noexcept
        : begin_(static_cast<std::uint16_t>(begin)), end_(static_cast<std::uint16_t>(end)) {}

    std::uint16_t begin_ = 0;
    std::uint16_t end_ = toTheEnd;
};

} // namespace StringTables
