#include "Foundation/internal/NumberText.h"

#include <algorithm>
#include <array>
#include <charconv>
#include <cmath>
#include <limits>

namespace Foundation::detail {

namespace {

using Intl::NumberPattern;
using Intl::NumberStyle;

// A nonnegative decimal number: 0.DIGITS times ten to the power of `point`, without trailing zeros. Zero has no digits.
struct Decimal {
    std::array<char, std::numeric_limits<std::uint64_t>::digits10 + 1> digits;
    int count = 0;
    int point = 0;

    // `magnitude`, finite and not negative, times ten to the power of `power`, rounded to `places` fraction digits.
    Decimal(double magnitude, int power, int places) noexcept {
        if (readScaled(magnitude, power + places)) {
            point = count - places;
        } else {
            readShortest(magnitude);
            point += power;
            round(places);
        }
        while (count > 0 && at(count - 1) == '0')
            --count;
        if (count == 0)
            point = 0;
    }

    char at(int place) const noexcept { return digits[static_cast<std::size_t>(place)]; }

private:
    // Fast path for nearly all numbers: the magnitude times ten to the power of `power`, rounded to an integer. Returns
    // false when the result might be wrong. The product is far below 2^53, so neither its rounding error nor the
    // difference between the value and its shortest digits can move it across a half unless it is near one.
    bool readScaled(double magnitude, int power) noexcept {
        static constexpr std::array<double, 7> powers = {1, 1e1, 1e2, 1e3, 1e4, 1e5, 1e6};
        static constexpr double largest = 0x1p40;
        static constexpr double nearHalf = 0x1p-10;
        if (static_cast<std::size_t>(power) >= powers.size())
            return false;
        const double scaled = magnitude * powers[static_cast<std::size_t>(power)];
        if (!(scaled < largest))
            return false;
        const auto below = static_cast<std::uint64_t>(scaled);
        const double rest = scaled - static_cast<double>(below);
        if (std::fabs(rest - 0.5) < nearHalf)
            return false;
        const std::uint64_t rounded = below + (rest > 0.5 ? 1 : 0);
        if (rounded != 0)
            count = static_cast<int>(std::to_chars(digits.begin(), digits.end(), rounded).ptr - digits.begin());
        return true;
    }

    void readShortest(double magnitude) noexcept {
        std::array<char, 32> text; // "1.2345e+06"
        char* const end = std::to_chars(text.begin(), text.end(), magnitude, std::chars_format::scientific).ptr;
        const char* next = text.begin();
        for (; *next != 'e'; ++next)
            if (*next != '.')
                digits[static_cast<std::size_t>(count++)] = *next;
        std::from_chars(next + (next[1] == '+' ? 2 : 1), end, point);
        ++point;
    }

    // Rounds to `places` fraction digits, halves to even.
    void round(int places) noexcept {
        const int keep = point + places;
        if (keep >= count)
            return;
        if (keep < 0) {
            count = 0;
            return;
        }
        const char next = at(keep);
        const bool isOdd = keep > 0 && (at(keep - 1) - '0') % 2 != 0;
        const bool roundsUp = next > '5' || (next == '5' && (isOdd || keep + 1 < count));
        count = keep;
        if (!roundsUp)
            return;
        while (count > 0 && at(count - 1) == '9')
            --count;
        if (count > 0) {
            ++digits[static_cast<std::size_t>(count - 1)];
        } else {
            digits[0] = '1';
            count = 1;
            ++point;
        }
    }
};

void appendMagnitude(std::string& out, const NumberPattern& pattern, double magnitude) {
    if (!std::isfinite(magnitude)) {
        out += std::isnan(magnitude) ? pattern.notANumber : pattern.infinity;
        return;
    }
    const Decimal number(magnitude, static_cast<int>(pattern.powerOfTen), static_cast<int>(pattern.maximumFraction));
    std::array<char, std::numeric_limits<double>::max_exponent10 + 16> whole;
    const int wholeDigits = std::max(number.point, 1);
    std::fill_n(whole.begin(), wholeDigits, '0');
    std::copy_n(number.digits.begin(), std::clamp(number.point, 0, number.count), whole.begin());
    appendWhole(out, pattern, {whole.data(), static_cast<std::size_t>(wholeDigits)});

    const int places = std::max(number.count - number.point, static_cast<int>(pattern.minimumFraction));
    if (places <= 0)
        return;
    out += pattern.decimalSeparator;
    for (int place = number.point; place < number.point + places; ++place) {
        const char digit = place < 0 || place >= number.count ? '0' : number.at(place);
        appendDigits(out, pattern, {&digit, 1});
    }
}

void appendMagnitude(std::string& out, const NumberPattern& pattern, std::uint64_t magnitude) {
    std::array<char, std::numeric_limits<std::uint64_t>::digits10 + 1 + 8> digits;
    char* end = std::to_chars(digits.data(), digits.data() + digits.size(), magnitude).ptr;
    if (magnitude != 0)
        end = std::fill_n(end, pattern.powerOfTen, '0');
    appendWhole(out, pattern, {digits.data(), end});
}

} // namespace

Kept<NumberPattern> numberPattern(std::string_view locale, NumberStyle style) {
    static constinit LocaleCache<NumberPattern> decimal, percent;
    LocaleCache<NumberPattern>& cache = style == NumberStyle::percent ? percent : decimal;
    return cache.get(locale, [&] { return Intl::numberPattern(locale, style); });
}

void appendDigits(std::string& out, const NumberPattern& pattern, std::string_view digits) {
    if (pattern.digits[0] == "0") {
        out += digits;
        return;
    }
    for (const char digit : digits)
        out += pattern.digits[static_cast<std::size_t>(digit - '0')];
}

void appendWhole(std::string& out, const NumberPattern& pattern, std::string_view digits) {
    const std::size_t primary = pattern.primaryGrouping;
    const std::size_t secondary = pattern.secondaryGrouping;
    if (primary == 0 || digits.size() < primary + pattern.minimumGrouping) {
        appendDigits(out, pattern, digits);
        return;
    }
    const std::size_t last = digits.size() - primary; // the start of the last group
    std::size_t begin = 0;
    for (std::size_t end = (last - 1) % secondary + 1; begin != last; begin = end, end += secondary) {
        appendDigits(out, pattern, digits.substr(begin, end - begin));
        out += pattern.groupingSeparator;
    }
    appendDigits(out, pattern, digits.substr(last));
}

void appendNumber(std::string& out, const NumberPattern& pattern, std::string_view positivePrefix, NSNumber number) {
    const bool isNegative = number.isNegative();
    out += isNegative ? std::string_view(pattern.negativePrefix) : positivePrefix;
    if (number.isFloating())
        appendMagnitude(out, pattern, std::fabs(number.doubleValue()));
    else if (isNegative)
        appendMagnitude(out, pattern, -static_cast<std::uint64_t>(number.int64Value()));
    else
        appendMagnitude(out, pattern, number.uint64Value());
    out += isNegative ? pattern.negativeSuffix : pattern.positiveSuffix;
}

} // namespace Foundation::detail
