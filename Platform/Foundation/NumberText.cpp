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

// A nonnegative decimal number: 0.DIGITS times ten to the power of `point`. Zero has no digits.
struct Decimal {
    std::array<char, std::numeric_limits<std::uint64_t>::digits10 + 1> digits;
    int count = 0;
    int point = 0;

    // `magnitude` times ten to the power of `power`.
    Decimal(std::uint64_t magnitude, int power) noexcept {
        if (magnitude == 0)
            return;
        readInteger(magnitude);
        point = count + power;
    }

    // `magnitude`, finite and not negative, times ten to the power of `power`, rounded to `places` fraction digits;
    // without trailing zeros.
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

    // The digit at a place; '0' outside of the digits.
    char at(int place) const noexcept {
        return place < 0 || place >= count ? '0' : digits[static_cast<std::size_t>(place)];
    }
    // Without whole digits, a zero is written before the decimal separator.
    int wholeDigits() const noexcept { return std::max(point, 1); }
    char wholeDigit(int place) const noexcept { return point < 1 ? '0' : at(place); }

private:
    void readInteger(std::uint64_t integer) noexcept {
        count = static_cast<int>(std::to_chars(digits.begin(), digits.end(), integer).ptr - digits.begin());
    }
    // Fast path for nearly all numbers: the magnitude times ten to the power of `power`, rounded to an integer. Returns
    // false when the result might be wrong. The product is far below 2^53, so neither its rounding error nor the
    // difference between the value and its shortest digits can move it across a half unless it is near a half.
    bool readScaled(double magnitude, int power) noexcept {
        static constexpr std::array<double, 7> powers = {1, 1e1, 1e2, 1e3, 1e4, 1e5, 1e6};
        static constexpr double largest = 0x1p40;
        static constexpr double nearHalf = 0x1p-10;
        if (static_cast<std::size_t>(power) >= powers.size())
            return false;
        const double scaled = magnitude * powers[static_cast<std::size_t>(power)];
        if (!(scaled < largest))
            return false;
        const auto below = static_cast<std::int64_t>(scaled);
        const double rest = scaled - static_cast<double>(below);
        if (std::fabs(rest - 0.5) < nearHalf)
            return false;
        const auto rounded = static_cast<std::uint64_t>(below + (rest > 0.5 ? 1 : 0));
        if (rounded != 0)
            readInteger(rounded);
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

// Writes the pieces of a number one after the other into a buffer that has room for all. Appending each to a string
// would take twice as long.
class NumberWriter {
public:
    NumberWriter(const NumberPattern& pattern, char* out) noexcept : pattern_(pattern), out_(out) {}

    char* end() const noexcept { return out_; }

    void put(std::string_view piece) noexcept {
        for (const char c : piece) // faster than a call, as nearly all pieces have a few bytes
            *out_++ = c;
    }
    void putDigit(char digit) noexcept {
        if (isAscii_)
            *out_++ = digit;
        else
            put(pattern_.digits[static_cast<std::size_t>(digit - '0')]);
    }
    // Puts `count` digits and the separators between their groups.
    template <class DigitAt> void putWhole(std::size_t count, DigitAt digitAt) noexcept {
        std::size_t separators = separatorsOf(pattern_, count);
        std::size_t groupEnd =
            separators == 0 ? count : count - pattern_.primaryGrouping - (separators - 1) * pattern_.secondaryGrouping;
        for (std::size_t i = 0; i < count; ++i) {
            if (i == groupEnd) {
                put(pattern_.groupingSeparator);
                groupEnd += --separators == 0 ? pattern_.primaryGrouping : pattern_.secondaryGrouping;
            }
            putDigit(digitAt(i));
        }
    }

    // The number of separators between the groups of `digits` whole digits.
    static std::size_t separatorsOf(const NumberPattern& pattern, std::size_t digits) noexcept {
        if (pattern.primaryGrouping == 0 || digits < pattern.primaryGrouping + pattern.minimumGrouping)
            return 0;
        return (digits - pattern.primaryGrouping - 1) / pattern.secondaryGrouping + 1;
    }
    // The most bytes that `digits` digits and the separators between the groups of the first `whole` need.
    static std::size_t longestOf(const NumberPattern& pattern, std::size_t digits, std::size_t whole) noexcept {
        const std::size_t ofDigits = isAscii(pattern) ? digits : digits * longestDigit(pattern);
        return ofDigits + separatorsOf(pattern, whole) * pattern.groupingSeparator.size();
    }

private:
    static bool isAscii(const NumberPattern& pattern) noexcept {
        const std::string& zero = pattern.digits[0];
        return zero.size() == 1 && zero[0] == '0';
    }
    static std::size_t longestDigit(const NumberPattern& pattern) noexcept {
        return std::ranges::max_element(pattern.digits, {}, [](const std::string& digit) { return digit.size(); })
            ->size();
    }

    const NumberPattern& pattern_;
    const bool isAscii_ = isAscii(pattern_);
    char* out_;
};

// Appends what `write(writer)` writes with a NumberWriter, at most `longest` bytes.
template <class Write>
void appendWritten(std::string& out, const NumberPattern& pattern, std::size_t longest, Write write) {
    const std::size_t size = out.size();
    out.resize(size + longest);
    NumberWriter writer(pattern, out.data() + size);
    write(writer);
    out.resize(static_cast<std::size_t>(writer.end() - out.data()));
}

Decimal decimalOf(const NumberPattern& pattern, const NSNumber& number) noexcept {
    const int power = static_cast<int>(pattern.powerOfTen);
    if (number.isFloating())
        return {std::fabs(number.doubleValue()), power, static_cast<int>(pattern.maximumFraction)};
    if (number.isNegative())
        return {-static_cast<std::uint64_t>(number.int64Value()), power};
    return {number.uint64Value(), power};
}

} // namespace

Kept<NumberPattern> numberPattern(std::string_view locale, NumberStyle style) {
    static constinit LocaleCache<NumberPattern> decimal, percent;
    LocaleCache<NumberPattern>& cache = style == NumberStyle::percent ? percent : decimal;
    return cache.get(locale, [&] { return Intl::numberPattern(locale, style); });
}

void appendDigits(std::string& out, const NumberPattern& pattern, std::string_view digits) {
    appendWritten(out, pattern, NumberWriter::longestOf(pattern, digits.size(), 0), [&](NumberWriter& writer) {
        for (const char digit : digits)
            writer.putDigit(digit);
    });
}

void appendWhole(std::string& out, const NumberPattern& pattern, std::string_view digits) {
    appendWritten(
        out, pattern, NumberWriter::longestOf(pattern, digits.size(), digits.size()),
        [&](NumberWriter& writer) { writer.putWhole(digits.size(), [&](std::size_t i) { return digits[i]; }); });
}

void appendNumber(std::string& out, const NumberPattern& pattern, std::string_view positivePrefix,
                  const NSNumber& number) {
    const bool isNegative = number.isNegative();
    const std::string_view prefix = isNegative ? std::string_view(pattern.negativePrefix) : positivePrefix;
    const std::string_view suffix = isNegative ? pattern.negativeSuffix : pattern.positiveSuffix;
    if (number.isFloating() && !std::isfinite(number.doubleValue())) {
        out += prefix;
        out += std::isnan(number.doubleValue()) ? pattern.notANumber : pattern.infinity;
        out += suffix;
        return;
    }
    const Decimal decimal = decimalOf(pattern, number);
    const auto whole = static_cast<std::size_t>(decimal.wholeDigits());
    const int fraction = std::max({decimal.count - decimal.point, static_cast<int>(pattern.minimumFraction), 0});
    const std::size_t longest = prefix.size() + suffix.size() + pattern.decimalSeparator.size() +
                                NumberWriter::longestOf(pattern, whole + static_cast<std::size_t>(fraction), whole);
    appendWritten(out, pattern, longest, [&](NumberWriter& writer) {
        writer.put(prefix);
        writer.putWhole(whole, [&](std::size_t i) { return decimal.wholeDigit(static_cast<int>(i)); });
        if (fraction > 0)
            writer.put(pattern.decimalSeparator);
        for (int place = decimal.point; place < decimal.point + fraction; ++place)
            writer.putDigit(decimal.at(place));
        writer.put(suffix);
    });
}

} // namespace Foundation::detail
