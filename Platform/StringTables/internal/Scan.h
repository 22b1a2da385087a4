// StringTables/internal/Scan.h
// Searches for bytes, with SSE2 in blocks of sixteen or more.
// Text: any bytes. Nothing outside [at, end) is read.
#pragma once

#include <bit>
#include <cstdint>
#include <cstring>
#include <string_view>
#if defined(__SSE2__)
#include <emmintrin.h>
#endif

namespace StringTables::internal {

// The first `a` or `b` in [at, end), or end.
inline const char* findEither(const char* at, const char* end, char a, char b) noexcept {
#if defined(__SSE2__)
    const __m128i as = _mm_set1_epi8(a), bs = _mm_set1_epi8(b);
    for (; end - at >= 16; at += 16) {
        const __m128i bytes = _mm_loadu_si128(reinterpret_cast<const __m128i*>(at));
        const __m128i hits = _mm_or_si128(_mm_cmpeq_epi8(bytes, as), _mm_cmpeq_epi8(bytes, bs));
        if (const auto mask = static_cast<unsigned>(_mm_movemask_epi8(hits)))
            return at + std::countr_zero(mask);
    }
#endif
    while (at != end && *at != a && *at != b)
        ++at;
    return at;
}

// The first byte of [at, end) above 0x7F, or end.
inline const char* skipAscii(const char* at, const char* end) noexcept {
    constexpr std::uint64_t high = 0x8080808080808080;
    const auto word = [](const char* from) {
        std::uint64_t bytes;
        std::memcpy(&bytes, from, sizeof bytes);
        return bytes;
    };
#if defined(__SSE2__)
    const auto load = [](const char* from) { return _mm_loadu_si128(reinterpret_cast<const __m128i*>(from)); };
    for (; end - at >= 64; at += 64) {
        const __m128i left = _mm_or_si128(load(at), load(at + 16)), right = _mm_or_si128(load(at + 32), load(at + 48));
        if (_mm_movemask_epi8(_mm_or_si128(left, right)))
            break;
    }
    for (; end - at >= 16; at += 16)
        if (const auto mask = static_cast<unsigned>(_mm_movemask_epi8(load(at))))
            return at + std::countr_zero(mask);
#else
    while (end - at >= 16 && ((word(at) | word(at + 8)) & high) == 0)
        at += 16;
#endif
    // For a short rest, two possibly overlapping loads are faster than a loop of unpredictable length. Without SSE2 the
    // rest may be longer, if one of its first sixteen bytes is not ASCII.
    if (end - at >= 8 && end - at <= 16 && ((word(at) | word(end - 8)) & high) == 0)
        return end;
    while (at != end && static_cast<unsigned char>(*at) < 0x80)
        ++at;
    return at;
}

inline bool isAscii(std::string_view text) noexcept {
    const char* const end = text.data() + text.size();
    return skipAscii(text.data(), end) == end;
}

} // namespace StringTables::internal
