#include "Generator/Unicode.h"

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

// The oldest of the compilers in use know the characters of Unicode 13.
bool isSettled(UChar32 c) noexcept {
    UVersionInfo age;
    u_charAge(c, age);
    return age[0] <= 13 && !u_hasBinaryProperty(c, UCHAR_DEFAULT_IGNORABLE_CODE_POINT);
}

} // namespace

std::u32string decoded(std::string_view utf8) {
    return points(icu::UnicodeString::fromUTF8(utf8));
}

std::string encoded(std::u32string_view text) {
    std::string utf8;
    return unicodeString(text).toUTF8String(utf8);
}

std::u32string composed(std::u32string_view text) {
    UErrorCode failed = U_ZERO_ERROR;
    return points(icu::Normalizer2::getNFCInstance(failed)->normalize(unicodeString(text), failed));
}

std::u32string compatible(std::u32string_view text) {
    UErrorCode failed = U_ZERO_ERROR;
    return points(icu::Normalizer2::getNFKCInstance(failed)->normalize(unicodeString(text), failed));
}

char32_t upper(char32_t c) noexcept {
    return static_cast<char32_t>(u_toupper(code(c)));
}

char32_t lower(char32_t c) noexcept {
    return static_cast<char32_t>(u_tolower(code(c)));
}

bool isCapital(char32_t c) noexcept {
    return u_isupper(code(c)) || u_istitle(code(c));
}

bool isLower(char32_t c) noexcept {
    return u_islower(code(c));
}

bool isDigit(char32_t c) noexcept {
    return u_isdigit(code(c));
}

bool beginsIdentifier(char32_t c) noexcept {
    return c == '_' || (u_hasBinaryProperty(code(c), UCHAR_XID_START) && isSettled(code(c)));
}

bool continuesIdentifier(char32_t c) noexcept {
    return u_hasBinaryProperty(code(c), UCHAR_XID_CONTINUE) && isSettled(code(c));
}

bool isVisible(char32_t c) noexcept {
    return c == ' ' || (u_isgraph(code(c)) && isSettled(code(c)) && u_charType(code(c)) != U_FORMAT_CHAR);
}

} // namespace Generator::Unicode
