#include "StringTables/internal/TextEscapes.h"

#include "StringTables/internal/Unicode.h"
#include <algorithm>
#include <cstdint>
#include <cstring>
#include <iterator>

namespace StringTables::internal {

namespace {

// Octal escapes are bytes of the NEXTSTEP character set, which is ASCII below 0x80. It has no characters 0xFE and 0xFF.
constexpr char16_t nextstep[0x7E] = {
    0x00A0, 0x00C0, 0x00C1, 0x00C2, 0x00C3, 0x00C4, 0x00C5, 0x00C7, 0x00C8, 0x00C9, 0x00CA, 0x00CB, 0x00CC, 0x00CD,
    0x00CE, 0x00CF, 0x00D0, 0x00D1, 0x00D2, 0x00D3, 0x00D4, 0x00D5, 0x00D6, 0x00D9, 0x00DA, 0x00DB, 0x00DC, 0x00DD,
    0x00DE, 0x00B5, 0x00D7, 0x00F7, 0x00A9, 0x00A1, 0x00A2, 0x00A3, 0x2044, 0x00A5, 0x0192, 0x00A7, 0x00A4, 0x2019,
    0x201C, 0x00AB, 0x2039, 0x203A, 0xFB01, 0xFB02, 0x00AE, 0x2013, 0x2020, 0x2021, 0x00B7, 0x00A6, 0x00B6, 0x2022,
    0x201A, 0x201E, 0x201D, 0x00BB, 0x2026, 0x2030, 0x00AC, 0x00BF, 0x00B9, 0x02CB, 0x00B4, 0x02C6, 0x02DC, 0x00AF,
    0x02D8, 0x02D9, 0x00A8, 0x00B2, 0x02DA, 0x00B8, 0x00B3, 0x02DD, 0x02DB, 0x02C7, 0x2014, 0x00B1, 0x00BC, 0x00BD,
    0x00BE, 0x00E0, 0x00E1, 0x00E2, 0x00E3, 0x00E4, 0x00E5, 0x00E7, 0x00E8, 0x00E9, 0x00EA, 0x00EB, 0x00EC, 0x00C6,
    0x00ED, 0x00AA, 0x00EE, 0x00EF, 0x00F0, 0x00F1, 0x0141, 0x00D8, 0x0152, 0x00BA, 0x00F2, 0x00F3, 0x00F4, 0x00F5,
    0x00F6, 0x00E6, 0x00F9, 0x00FA, 0x00FB, 0x0131, 0x00FC, 0x00FD, 0x0142, 0x00F8, 0x0153, 0x00DF, 0x00FE, 0x00FF};

// The escape functions are called with `in` at a backslash. They move it past the escape, write its character at `out`
// and return null; or they change nothing and return what is wrong with the escape.
using Fault = const char*;

// The UTF-16 unit written as \U and four digits at `at`, or -1. Reads no further than the first character that does
// not fit.
std::int32_t escapedUnit(const char* at) noexcept {
    if (at[0] != '\\' || at[1] != 'U')
        return -1;
    std::int32_t unit = 0;
    for (int i = 2; i < 6; ++i) {
        const int digit = hexDigit(at[i]);
        if (digit < 0)
            return -1;
        unit = unit * 16 + digit;
    }
    return unit;
}

Fault unicodeEscape(const char*& in, char*& out) noexcept {
    constexpr std::ptrdiff_t length = 6;
    const std::int32_t unit = escapedUnit(in);
    if (unit < 0)
        return "bad escape: \\U takes four hexadecimal digits";
    auto code = static_cast<char32_t>(unit);
    const char* end = in + length;
    if (isHighSurrogate(code))
        if (const auto low = static_cast<char32_t>(escapedUnit(end)); isLowSurrogate(low)) {
            code = joinSurrogates(code, low);
            end += length;
        }
    if (isSurrogate(code))
        return "bad escape: a surrogate without its other half";
    out = putUtf8(out, code);
    in = end;
    return nullptr;
}

Fault octalEscape(const char*& in, char*& out) noexcept {
    constexpr std::ptrdiff_t longest = 4;
    const char* digit = in + 1;
    unsigned byte = 0;
    for (; digit != in + longest && *digit >= '0' && *digit <= '7'; ++digit)
        byte = byte * 8 + static_cast<unsigned>(*digit - '0');
    if (byte >= 0x80 + std::size(nextstep))
        return "bad escape: no character has this octal number";
    out = putUtf8(out, byte < 0x80 ? byte : nextstep[byte - 0x80]);
    in = digit;
    return nullptr;
}

Fault escape(const char*& in, char*& out) noexcept {
    constexpr std::string_view letters = "abfnrtv", characters = "\a\b\f\n\r\t\v";
    const char c = in[1];
    if (c == 'U')
        return unicodeEscape(in, out);
    if (c >= '0' && c <= '7')
        return octalEscape(in, out);
    // If `c` begins a multi-byte character, unescape() copies the rest of it.
    const std::size_t letter = letters.find(c);
    *out++ = letter != letters.npos ? characters[letter] : c;
    in += 2;
    return nullptr;
}

} // namespace

Unescaped unescape(std::string_view raw, char* out) noexcept {
    const char* in = raw.data();
    const char* const end = in + raw.size();
    while (in != end) {
        const auto* found = static_cast<const char*>(std::memchr(in, '\\', static_cast<std::size_t>(end - in)));
        const char* const stop = found ? found : end;
        out = std::copy(in, stop, out);
        in = stop;
        if (in == end)
            break;
        if (const Fault fault = escape(in, out))
            return {out, in, fault};
    }
    return {out};
}

} // namespace StringTables::internal
