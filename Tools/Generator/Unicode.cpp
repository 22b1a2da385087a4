#include "Generator/Unicode.h"

#include <algorithm>
#include <iterator>
#include <unicode/normalizer2.h>
#include <unicode/uchar.h>
#include <unicode/unistr.h>

namespace Generator::Unicode {

namespace {

UChar32 code(char32_t c) noexcept {
    return static_cast<UChar32>(c);
}

icu::UnicodeString unicodeString(std::u32string_view text) {
    icu::UnicodeString string;
    for (const char32_t c : text)
        string.append(code(c));
    return string;
}

std::u32string points(const icu::UnicodeString& string) {
    std::u32string text;
    for (std::int32_t at = 0; at < string.length(); at = string.moveIndex32(at, 1))
        text += static_cast<char32_t>(string.char32At(at));
    return text;
}

constexpr bool isAscii(char32_t c) noexcept {
    return c < 0x80;
}
constexpr bool isAsciiCapital(char32_t c) noexcept {
    return c >= 'A' && c <= 'Z';
}
constexpr bool isAsciiLower(char32_t c) noexcept {
    return c >= 'a' && c <= 'z';
}
constexpr bool isAsciiDigit(char32_t c) noexcept {
    return c >= '0' && c <= '9';
}

// Whether the character is neither newer than Unicode 13 nor invisible by definition. True for unassigned ones, which
// the callers reject.
bool isSettled(UChar32 c) noexcept {
    UVersionInfo age;
    u_charAge(c, age);
    return age[0] <= 13 && !u_hasBinaryProperty(c, UCHAR_DEFAULT_IGNORABLE_CODE_POINT);
}

} // namespace

// The functions below handle ASCII first, because nearly all names consist of it.

std::u32string decoded(std::string_view utf8) {
    if (std::ranges::all_of(utf8, [](unsigned char byte) { return isAscii(byte); }))
        return {utf8.begin(), utf8.end()};
    return points(icu::UnicodeString::fromUTF8(utf8));
}

std::string encoded(std::u32string_view text) {
    std::string utf8;
    if (std::ranges::all_of(text, isAscii))
        std::ranges::transform(text, std::back_inserter(utf8), [](char32_t c) { return static_cast<char>(c); });
    else
        unicodeString(text).toUTF8String(utf8);
    return utf8;
}

std::u32string composed(std::u32string_view text) {
    if (std::ranges::all_of(text, isAscii))
        return std::u32string(text);
    UErrorCode failed = U_ZERO_ERROR;
    return points(icu::Normalizer2::getNFCInstance(failed)->normalize(unicodeString(text), failed));
}

std::u32string compatible(std::u32string_view text) {
    if (std::ranges::all_of(text, isAscii))
        return std::u32string(text);
    UErrorCode failed = U_ZERO_ERROR;
    return points(icu::Normalizer2::getNFKCInstance(failed)->normalize(unicodeString(text), failed));
}

char32_t upper(char32_t c) noexcept {
    return isAscii(c) ? c - (isAsciiLower(c) ? 'a' - 'A' : 0) : static_cast<char32_t>(u_toupper(code(c)));
}

char32_t lower(char32_t c) noexcept {
    return isAscii(c) ? c + (isAsciiCapital(c) ? 'a' - 'A' : 0) : static_cast<char32_t>(u_tolower(code(c)));
}

bool isCapital(char32_t c) noexcept {
    return isAscii(c) ? isAsciiCapital(c) : u_isupper(code(c)) || u_istitle(code(c));
}

bool isLower(char32_t c) noexcept {
    return isAscii(c) ? isAsciiLower(c) : static_cast<bool>(u_islower(code(c)));
}

bool isDigit(char32_t c) noexcept {
    return isAscii(c) ? isAsciiDigit(c) : static_cast<bool>(u_isdigit(code(c)));
}

bool beginsIdentifier(char32_t c) noexcept {
    if (isAscii(c))
        return c == '_' || isAsciiCapital(c) || isAsciiLower(c);
    return u_hasBinaryProperty(code(c), UCHAR_XID_START) && isSettled(code(c));
}

bool continuesIdentifier(char32_t c) noexcept {
    if (isAscii(c))
        return c == '_' || isAsciiCapital(c) || isAsciiLower(c) || isAsciiDigit(c);
    return u_hasBinaryProperty(code(c), UCHAR_XID_CONTINUE) && isSettled(code(c));
}

std::size_t columnsOf(char32_t c) noexcept {
    if (isAscii(c))
        return 1;
    const int type = u_charType(code(c));
    if (type == U_NON_SPACING_MARK || type == U_ENCLOSING_MARK || type == U_FORMAT_CHAR)
        return 0;
    const int width = u_getIntPropertyValue(code(c), UCHAR_EAST_ASIAN_WIDTH);
    return width == U_EA_WIDE || width == U_EA_FULLWIDTH ? 2 : 1;
}

bool isVisible(char32_t c) noexcept {
    if (isAscii(c))
        return c >= ' ' && c < 0x7F;
    return u_isgraph(code(c)) && isSettled(code(c)) && u_charType(code(c)) != U_FORMAT_CHAR;
}

} // namespace Generator::Unicode
