#include "StringTables/internal/Unicode.h"

#include "Runtime/internal/Hash.h"
#include "StringTables/internal/Scan.h"
#include <bit>
#include <cstdint>
#include <cstring>

namespace StringTables::internal {

namespace {

constexpr bool isTail(unsigned char byte) noexcept {
    return !beginsCharacter(static_cast<char>(byte));
}

// Whether `byte` can follow `lead` in a character of three or four bytes. The bounds exclude surrogates, overlong forms
// and code points above U+10FFFF.
constexpr bool isSecond(unsigned char lead, unsigned char byte) noexcept {
    switch (lead) {
    case 0xE0:
        return byte >= 0xA0 && byte <= 0xBF;
    case 0xED:
        return byte >= 0x80 && byte <= 0x9F;
    case 0xF0:
        return byte >= 0x90 && byte <= 0xBF;
    case 0xF4:
        return byte >= 0x80 && byte <= 0x8F;
    default:
        return isTail(byte);
    }
}

// The length of the well-formed multi-byte character at `at`, or 0.
std::size_t characterLength(const unsigned char* at, std::size_t left) noexcept {
    const unsigned char lead = at[0];
    if (lead < 0xC2 || lead > 0xF4 || left < 2)
        return 0;
    if (lead < 0xE0)
        return isTail(at[1]) ? 2 : 0;
    if (!isSecond(lead, at[1]) || left < 3 || !isTail(at[2]))
        return 0;
    if (lead < 0xF0)
        return 3;
    return left >= 4 && isTail(at[3]) ? 4 : 0;
}

// The length of a well-formed character by its first byte.
constexpr std::size_t characterLength(unsigned char lead) noexcept {
    if (lead < 0x80)
        return 1;
    if (lead < 0xE0)
        return 2;
    return lead < 0xF0 ? 3 : 4;
}

// `number * everyUnit` has `number` in each of its four 16-bit lanes.
constexpr std::uint64_t everyUnit = 0x0001000100010001;

// Whether the next eight bytes are four characters of two bytes, as in words of Cyrillic, Greek, Hebrew and Arabic.
bool areFourPairs(const char* at) noexcept {
    const auto bytes = Runtime::loadLittle<std::uint64_t>(at); // leads in the lower halves of the 16-bit lanes
    const bool haveForm = (bytes & 0xC0E0 * everyUnit) == 0x80C0 * everyUnit;
    // Lead bytes C0 and C1 begin overlong forms: their bits 1 to 4 are 0, so adding FE to them does not carry.
    const std::uint64_t carries = (bytes & 0x001E * everyUnit) + 0x00FE * everyUnit;
    return haveForm && (carries & 0x0100 * everyUnit) == 0x0100 * everyUnit;
}

} // namespace

std::size_t firstInvalidUtf8(std::string_view bytes) noexcept {
    const char* at = bytes.data();
    const char* const end = at + bytes.size();
    while ((at = skipAscii(at, end)) != end)
        do {
            while (end - at >= 8 && areFourPairs(at))
                at += 8;
            if (at == end || static_cast<unsigned char>(*at) < 0x80)
                break;
            const auto left = static_cast<std::size_t>(end - at);
            const std::size_t length = characterLength(reinterpret_cast<const unsigned char*>(at), left);
            if (length == 0)
                return bytes.size() - left;
            at += length;
        } while (at != end && static_cast<unsigned char>(*at) >= 0x80);
    return std::string_view::npos;
}

char* putUtf8(char* out, char32_t code) noexcept {
    const auto put = [&out](char32_t byte) { *out++ = static_cast<char>(byte); };
    if (code < 0x80) {
        put(code);
        return out;
    }
    if (code < 0x800) {
        put(0xC0 | code >> 6);
    } else {
        if (code < 0x10000) {
            put(0xE0 | code >> 12);
        } else {
            put(0xF0 | code >> 18);
            put(0x80 | (code >> 12 & 0x3F));
        }
        put(0x80 | (code >> 6 & 0x3F));
    }
    put(0x80 | (code & 0x3F));
    return out;
}

namespace {

// Four units, the first in the lowest bits.
std::uint64_t fourUnits(const char* from, ByteOrder order) noexcept {
    std::uint64_t units;
    std::memcpy(&units, from, sizeof units);
    if constexpr (std::endian::native == std::endian::big)
        units = __builtin_bswap64(units);
    return order == ByteOrder::little ? units : (units >> 8 & 0xFF * everyUnit) | (units & 0xFF * everyUnit) << 8;
}

// Encodes a code point below 0x800. No branch, because the mix of letters and spaces is unpredictable: always writes
// two bytes and returns the end of the one or two that count.
char* putOneOrTwo(char* out, char32_t code) noexcept {
    const bool isTwo = code >= 0x80;
    out[0] = static_cast<char>(isTwo ? 0xC0 | code >> 6 : code);
    out[1] = static_cast<char>(0x80 | (code & 0x3F));
    return out + 1 + isTwo;
}

} // namespace

Decoded decodeUtf16(std::string_view bytes, ByteOrder order, char* out) noexcept {
    const std::size_t high = order == ByteOrder::big ? 0 : 1; // the place of a unit's more significant byte
    const auto unitAt = [&](std::size_t at) {
        return static_cast<char32_t>(static_cast<unsigned char>(bytes[at + high]) << 8 |
                                     static_cast<unsigned char>(bytes[at + 1 - high]));
    };
    std::size_t at = 0;
    while (bytes.size() - at >= 2) {
        for (; bytes.size() - at >= 8; at += 8) {
            const std::uint64_t units = fourUnits(bytes.data() + at, order);
            if ((units & 0xF800 * everyUnit) != 0)
                break;
            for (int shift = 0; shift < 64; shift += 16)
                out = putOneOrTwo(out, static_cast<char32_t>(units >> shift & 0xFFFF));
        }
        if (bytes.size() - at < 2)
            break;
        char32_t code = unitAt(at);
        std::size_t length = 2;
        if (isHighSurrogate(code) && bytes.size() - at >= 4 && isLowSurrogate(unitAt(at + 2))) {
            code = joinSurrogates(code, unitAt(at + 2));
            length = 4;
        } else if (isSurrogate(code)) {
            break;
        }
        out = putUtf8(out, code);
        at += length;
    }
    return {out, at};
}

char32_t takeCharacter(std::string_view& utf8) noexcept {
    const auto at = [&utf8](std::size_t i) { return static_cast<char32_t>(static_cast<unsigned char>(utf8[i])); };
    char32_t code = at(0);
    const std::size_t length = characterLength(static_cast<unsigned char>(utf8[0]));
    if (length > 1)
        code &= 0x7Fu >> length;
    for (std::size_t i = 1; i < length; ++i)
        code = code << 6 | (at(i) & 0x3F);
    utf8.remove_prefix(length);
    return code;
}

std::u16string toUtf16(std::string_view utf8) {
    std::u16string units;
    while (!utf8.empty()) {
        const char32_t code = takeCharacter(utf8);
        if (code >= 0x10000) {
            units += static_cast<char16_t>(0xD800 + ((code - 0x10000) >> 10));
            units += static_cast<char16_t>(0xDC00 + ((code - 0x10000) & 0x3FF));
        } else {
            units += static_cast<char16_t>(code);
        }
    }
    return units;
}

} // namespace StringTables::internal
