#include "Foundation/internal/FormattedNumber.h"

#include "Foundation/Describable.h"
#include "Foundation/String.h"
#include "Foundation/internal/NumberText.h"
#include <algorithm>
#include <array>
#include <charconv>
#include <cmath>
#include <cstdio>
#include <limits>
#include <new> // std::bad_alloc

namespace Foundation::detail {

namespace {

using Intl::NumberPattern;
using StringTables::Placeholder;

// The lowest bits of an integer that a placeholder uses: 8 for "%hhd", 16 for "%hd", else all 64.
std::uint64_t truncated(std::int64_t value, unsigned bits) noexcept {
    return bits == 64 ? static_cast<std::uint64_t>(value) : static_cast<std::uint64_t>(value) & ((1U << bits) - 1);
}
std::int64_t signedTruncated(std::int64_t value, unsigned bits) noexcept {
    if (bits == 8)
        return static_cast<std::int8_t>(value);
    return bits == 16 ? static_cast<std::int16_t>(value) : value;
}

// The sign of a nonnegative number, as the flags require it.
std::string_view flaggedSign(const Placeholder& placeholder, std::string_view plusSign) noexcept {
    if (placeholder.plusSign)
        return plusSign;
    return placeholder.spaceSign ? " " : "";
}

void appendPrefix(std::string& out, const Placeholder& placeholder, const NumberPattern& pattern, bool isNegative) {
    if (isNegative) {
        out += pattern.negativePrefix;
    } else {
        out += flaggedSign(placeholder, pattern.plusSign);
        out += pattern.positivePrefix;
    }
}

// Zero padding at the current end of `out`, if the flags require it.
Padding zerosAt(const std::string& out, const Placeholder& placeholder, std::string_view zero) noexcept {
    if (!placeholder.zeroPadded || placeholder.leftAligned)
        return std::nullopt;
    return ZeroPadding{out.size(), zero};
}

// `digits` with leading zeros up to the precision. With precision 0 the number 0 has no digits.
std::string precise(std::string_view digits, std::optional<std::size_t> precision) {
    if (precision == std::size_t{0} && digits == "0")
        return {};
    std::string out;
    if (precision && *precision > digits.size())
        out.assign(*precision - digits.size(), '0');
    return out.append(digits);
}

// A magnitude as snprintf() formats it, without a sign, with the decimal separator of setlocale()'s locale.
class LibraryText {
public:
    LibraryText(const ResolvedPlaceholder& resolved, double magnitude) {
        std::string format = resolved.placeholder.alternative ? "%#.*" : "%.*";
        format += resolved.placeholder.conversion;
        const int precision = resolved.precision ? static_cast<int>(*resolved.precision) : -1;
        const int size = std::snprintf(buffer_.data(), buffer_.size(), format.c_str(), precision, magnitude);
        if (size < 0)
            throw std::bad_alloc(); // snprintf() cannot fail for another reason here
        text_ = {buffer_.data(), static_cast<std::size_t>(size)};
    }
    std::string_view text() const noexcept { return text_; }

private:
    static constexpr std::size_t wholeDigits = std::numeric_limits<double>::max_exponent10 + 1;
    static constexpr std::size_t marks = 16; // a decimal separator of up to four bytes, an exponent, a NUL
    std::array<char, wholeDigits + String::largestSize + marks> buffer_;
    std::string_view text_;
};

bool isDigit(char c) noexcept {
    return c >= '0' && c <= '9';
}

// The parts of a decimal number as text. Its decimal separator depends on setlocale(): it is whatever follows the
// integer digits and is not an exponent.
struct DecimalParts {
    explicit DecimalParts(std::string_view text) {
        const auto take = [&text](auto belongs) {
            const auto end = std::ranges::find_if_not(text, belongs);
            const std::string_view part(text.data(), static_cast<std::size_t>(end - text.begin()));
            text.remove_prefix(part.size());
            return part;
        };
        whole = take(isDigit);
        hasSeparator = !take([](char c) { return !isDigit(c) && c != 'e' && c != 'E'; }).empty();
        fraction = take(isDigit);
        exponent = text;
    }
    std::string_view whole, fraction, exponent; // `exponent` has its letter and sign: "e+05"
    bool hasSeparator = false;
};

void appendLocalized(std::string& out, const NumberPattern& pattern, const DecimalParts& parts) {
    if (parts.exponent.empty())
        appendWhole(out, pattern, parts.whole);
    else
        appendDigits(out, pattern, parts.whole);
    if (parts.hasSeparator)
        out += pattern.decimalSeparator;
    appendDigits(out, pattern, parts.fraction);
    if (parts.exponent.empty())
        return;
    out += parts.exponent[0];
    out += parts.exponent[1] == '-' ? pattern.minusSign : pattern.plusSign;
    appendDigits(out, pattern, parts.exponent.substr(2));
}

Padding appendHexadecimal(std::string& out, const ResolvedPlaceholder& resolved, double value) {
    const Placeholder& placeholder = resolved.placeholder;
    out += std::signbit(value) ? std::string_view("-") : flaggedSign(placeholder, "+");
    const LibraryText printed(resolved, std::fabs(value));
    static constexpr std::size_t prefix = 2; // "0x"
    out += printed.text().substr(0, prefix);
    const Padding padding = zerosAt(out, placeholder, "0");
    for (const char c : printed.text().substr(prefix)) {
        const bool isPrinted = isDigit(c) || (c >= 'a' && c <= 'f') || (c >= 'A' && c <= 'F') || c == '+' || c == '-' ||
                               c == 'p' || c == 'P';
        if (isPrinted)
            out += c;
        else if (!out.ends_with('.')) // the bytes of the separator, which depends on setlocale(), become one point
            out += '.';
    }
    return padding;
}

Padding appendNotFinite(std::string& out, const Placeholder& placeholder, double value) {
    const bool isUpper = placeholder.conversion >= 'A' && placeholder.conversion <= 'Z';
    out += std::signbit(value) ? std::string_view("-") : flaggedSign(placeholder, "+");
    if (std::isnan(value))
        out += isUpper ? "NAN" : "nan";
    else
        out += isUpper ? "INF" : "inf";
    return std::nullopt;
}

} // namespace

Padding appendDecimal(std::string& out, const ResolvedPlaceholder& resolved, const NumberPattern& pattern,
                      std::int64_t value) {
    const Placeholder& placeholder = resolved.placeholder;
    std::uint64_t magnitude = 0;
    bool isNegative = false;
    if (placeholder.conversion == 'u') {
        magnitude = truncated(value, placeholder.bits);
        out += pattern.positivePrefix;
    } else {
        const std::int64_t number = signedTruncated(value, placeholder.bits);
        isNegative = number < 0;
        magnitude = isNegative ? -static_cast<std::uint64_t>(number) : static_cast<std::uint64_t>(number);
        appendPrefix(out, placeholder, pattern, isNegative);
    }
    const Padding padding = resolved.precision ? std::nullopt : zerosAt(out, placeholder, pattern.digits[0]);
    std::array<char, scalarTextSize> buffer;
    const std::string_view digits = unsignedText(magnitude, buffer.data());
    if (resolved.precision)
        appendWhole(out, pattern, precise(digits, resolved.precision));
    else
        appendWhole(out, pattern, digits);
    out += isNegative ? pattern.negativeSuffix : pattern.positiveSuffix;
    return padding;
}

Padding appendPlain(std::string& out, const ResolvedPlaceholder& resolved, std::int64_t value) {
    const Placeholder& placeholder = resolved.placeholder;
    const std::uint64_t bits = truncated(value, placeholder.bits);
    const bool isOctal = placeholder.conversion == 'o';
    std::array<char, scalarTextSize> buffer;
    char* const end = std::to_chars(buffer.data(), buffer.data() + buffer.size(), bits, isOctal ? 8 : 16).ptr;
    if (placeholder.conversion == 'X')
        std::transform(buffer.data(), end, buffer.data(), [](char c) { return c >= 'a' ? c - 'a' + 'A' : c; });
    std::string digits = precise({buffer.data(), static_cast<std::size_t>(end - buffer.data())}, resolved.precision);
    if (placeholder.alternative && isOctal && !digits.starts_with('0'))
        digits.insert(digits.begin(), '0');
    else if (placeholder.alternative && !isOctal && bits != 0)
        out += placeholder.conversion == 'X' ? "0X" : "0x";
    const Padding padding = resolved.precision ? std::nullopt : zerosAt(out, placeholder, "0");
    out += digits;
    return padding;
}

Padding appendFloating(std::string& out, const ResolvedPlaceholder& resolved, const NumberPattern& pattern,
                       double value) {
    const Placeholder& placeholder = resolved.placeholder;
    if (!std::isfinite(value))
        return appendNotFinite(out, placeholder, value);
    if (placeholder.conversion == 'a' || placeholder.conversion == 'A')
        return appendHexadecimal(out, resolved, value);
    const bool isNegative = std::signbit(value);
    appendPrefix(out, placeholder, pattern, isNegative);
    const Padding padding = zerosAt(out, placeholder, pattern.digits[0]);
    const LibraryText printed(resolved, std::fabs(value));
    appendLocalized(out, pattern, DecimalParts(printed.text()));
    out += isNegative ? pattern.negativeSuffix : pattern.positiveSuffix;
    return padding;
}

} // namespace Foundation::detail
