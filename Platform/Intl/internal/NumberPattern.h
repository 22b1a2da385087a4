// Intl/internal/NumberPattern.h
// How a locale writes numbers.
// Text: UTF-8. Threads: plain values.
#pragma once

#include <array>
#include <string>

namespace Intl {

enum class NumberStyle { decimal, percent };

// How one locale writes numbers of one style. The negative affixes include the sign. The default is the plain
// decimal form: ASCII digits without grouping.
struct NumberPattern {
    std::array<std::string, 10> digits = {"0", "1", "2", "3", "4", "5", "6", "7", "8", "9"};
    std::string positivePrefix, positiveSuffix;
    std::string negativePrefix = "-", negativeSuffix;
    std::string plusSign = "+", minusSign = "-"; // for a required plus and for exponents
    std::string decimalSeparator = ".", groupingSeparator;
    std::string infinity = "∞", notANumber = "NaN";
    unsigned primaryGrouping = 0;   // digits in the last group; 0 means no grouping
    unsigned secondaryGrouping = 0; // digits in the other groups
    unsigned minimumGrouping = 1;   // required digits before the first separator
    unsigned maximumFraction = 3;   // digits after the decimal separator
    unsigned minimumFraction = 0;
    unsigned powerOfTen = 0; // numbers are multiplied by this power of ten: 2 for percent
};

// The plain form of a style, used when the locale's data is not available.
[[nodiscard]] inline NumberPattern plainNumberPattern(NumberStyle style) {
    NumberPattern pattern;
    if (style == NumberStyle::percent) {
        pattern.positiveSuffix += '%';
        pattern.negativeSuffix += '%';
        pattern.maximumFraction = 0;
        pattern.powerOfTen = 2;
    }
    return pattern;
}

} // namespace Intl
