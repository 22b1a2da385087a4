// Intl/Intl.h
// What the platform must know of the world's languages: which one fits a user, how they write numbers, how they count
// years. The knowledge is ICU's, and ICU lies behind this page only, in the companion library lumora-intl.so: loading
// ICU costs more than a process's first text, and most texts need none of it. Text: UTF-8. Threads: any. Ownership:
// what is returned by reference lives until the process ends.
#pragma once

#include <array>
#include <cstddef>
#include <cstdint>
#include <memory>
#include <optional>
#include <span>
#include <string>
#include <string_view>

namespace Intl {

enum class NumberStyle { decimal, percent };

// How one locale writes numbers of one style. Affixes hold the sign where the locale puts it. As made here: the plain
// decimal form, ASCII without grouping.
struct NumberPattern {
    std::array<std::string, 10> digits = {"0", "1", "2", "3", "4", "5", "6", "7", "8", "9"};
    std::string positivePrefix, positiveSuffix;
    std::string negativePrefix = "-", negativeSuffix;
    std::string plusSign = "+", minusSign = "-";
    std::string decimalSeparator = ".", groupingSeparator;
    std::string infinity = "∞", notANumber = "NaN";
    unsigned primaryGrouping = 0;   // digits of the last group; 0: no grouping
    unsigned secondaryGrouping = 0; // digits of the groups before it
    unsigned minimumGrouping = 1;   // digits that must stand before the first separator
    unsigned maximumFraction = 3;
    unsigned minimumFraction = 0;
    unsigned powerOfTen = 0; // how far the point moves before a number is written: 2 for percent
};

// The plain form of a style: what there is without knowledge of the locale.
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

// How one locale counts years.
class YearPhrases {
public:
    virtual ~YearPhrases() = default;

    // "N years" in words, in the form that goes with that count; a negative one counts as its absolute value. "{0}"
    // stands for the number, which a form such as "a year" need not hold. The view lives as long as this does.
    virtual std::string_view phrase(std::int64_t count) const = 0;
};

class Services {
public:
    // The index in `supported` of the language that serves a reader of `desired` best, by CLDR's matching, or no value
    // when none is of a language that the reader named. Identifiers of both lists as BCP 47 or with '_'.
    virtual std::optional<std::size_t> matchLanguage(std::string_view desired,
                                                     std::span<const std::string> supported) const = 0;
    // Any identifier works; what is unknown is read as the root locale. "@numbers=" and other keywords are kept.
    virtual NumberPattern numberPattern(std::string_view locale, NumberStyle style) const = 0;
    // The same of the identifier. Null when there are no words.
    virtual std::unique_ptr<const YearPhrases> yearPhrases(std::string_view locale) const = 0;

protected:
    ~Services() = default;
};

// The services; null when the companion is absent, in which case callers fall back to plain forms. Loaded at the first
// call.
[[nodiscard]] const Services* services();

} // namespace Intl
