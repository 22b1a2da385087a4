#include "Foundation/Describable.h"

#include "StringTables/internal/Unicode.h"
#include <charconv>
#include <cmath>
#include <limits>

namespace Foundation::detail {

namespace {

template <class T> std::string_view shortestText(T value, char* buffer) noexcept {
    if (std::isnan(value))
        return "nan";
    if (std::isinf(value))
        return value < 0 ? "-inf" : "inf";
    // 2^digits: T cannot represent every greater integer; full digits would suggest a precision that it does not have.
    static constexpr T largestInFull = 2 / std::numeric_limits<T>::epsilon();
    static constexpr T smallestInFull = static_cast<T>(1e-4L); // smaller numbers are shorter with an exponent
    const T magnitude = std::fabs(value);
    const bool inFull = magnitude == 0 || (magnitude >= smallestInFull && magnitude <= largestInFull);
    const auto form = inFull ? std::chars_format::fixed : std::chars_format::scientific;
    char* end = std::to_chars(buffer, buffer + scalarTextSize, value, form).ptr;
    const std::string_view written(buffer, static_cast<std::size_t>(end - buffer));
    if (inFull && written.find('.') == std::string_view::npos) {
        *end++ = '.';
        *end++ = '0';
    }
    return {buffer, end};
}

template <class T> std::string_view decimalText(T value, char* buffer) noexcept {
    return {buffer, std::to_chars(buffer, buffer + scalarTextSize, value).ptr};
}

} // namespace

std::string_view integerText(std::int64_t value, char* buffer) noexcept {
    return decimalText(value, buffer);
}
std::string_view unsignedText(std::uint64_t value, char* buffer) noexcept {
    return decimalText(value, buffer);
}
std::string_view floatingText(float value, char* buffer) noexcept {
    return shortestText(value, buffer);
}
std::string_view floatingText(double value, char* buffer) noexcept {
    return shortestText(value, buffer);
}
std::string_view floatingText(long double value, char* buffer) noexcept {
    return shortestText(value, buffer);
}

std::string_view byteText(char byte, char* buffer) noexcept {
    *buffer = byte;
    return {buffer, 1};
}

std::string_view characterText(std::uint32_t codePoint, char* buffer) noexcept {
    const char32_t code = StringTables::internal::isScalar(codePoint) ? char32_t{codePoint} : U'\uFFFD';
    return {buffer, static_cast<std::size_t>(StringTables::internal::putUtf8(buffer, code) - buffer)};
}

void appendQuoted(std::string& out, std::string_view text) {
    static constexpr std::string_view hexDigits = "0123456789ABCDEF";
    static constexpr std::string_view escaped("\"\\\n\r\t\0", 6);
    static constexpr std::string_view escapes = "\"\\nrt0";
    out += '"';
    for (const char c : text) {
        const auto byte = static_cast<unsigned char>(c);
        if (const std::size_t known = escaped.find(c); known != std::string_view::npos)
            out.append({'\\', escapes[known]});
        else if (byte < 0x20 || byte == 0x7F)
            out.append("\\u{").append({hexDigits[byte >> 4], hexDigits[byte & 15], '}'});
        else
            out += c;
    }
    out += '"';
}

} // namespace Foundation::detail
