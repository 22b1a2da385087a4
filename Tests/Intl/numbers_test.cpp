// Compares formatted numbers with ICU in all of its locales.
#include "Foundation/internal/NumberText.h"
#include "Intl/internal/Precomputed.h"

#include <cmath>
#include <gtest/gtest.h>
#include <limits>
#include <unicode/localpointer.h>
#include <unicode/numberformatter.h>
#include <unicode/uenum.h>
#include <unicode/uloc.h>

namespace {

using Foundation::NSNumber;
using Intl::NumberStyle;

constexpr double infinity = std::numeric_limits<double>::infinity();

// Halves and their neighbours, powers of ten, the end of the fast path in NumberText.cpp (2^40), and extremes.
const double doubles[] = {
    0.0,
    -0.0,
    0.5,
    1.5,
    2.5,
    -2.5,
    0.0005,
    0.0015,
    0.0025,
    0.00049999,
    0.125,
    1.0005,
    1.0015,
    0.9995,
    0.99949,
    999.9995,
    9.9995,
    1234.5,
    -1234.5,
    12345.678,
    0.1,
    0.29,
    -0.0001,
    1234567.891,
    1e15,
    1e16,
    1e21,
    1e22,
    123456789012345.678,
    1099511627.7765,
    1099511627776.5,
    8796093022.2085,
    4.35,
    0.285,
    1e300,
    1e-300,
    5e-324,
    2.2250738585072014e-308,
    std::numeric_limits<double>::max(),
    9007199254740993.0,
    infinity,
    -infinity,
    std::nan(""),
};
const std::int64_t integers[] = {0,
                                 1,
                                 -1,
                                 9,
                                 12,
                                 999,
                                 1000,
                                 -1000,
                                 9999,
                                 10000,
                                 123456,
                                 1234567,
                                 123456789012,
                                 std::numeric_limits<std::int64_t>::max(),
                                 std::numeric_limits<std::int64_t>::min()};

icu::number::LocalizedNumberFormatter icuFormatter(const icu::Locale& locale, NumberStyle style) {
    auto formatter = icu::number::NumberFormatter::withLocale(locale).roundingMode(UNUM_ROUND_HALFEVEN);
    // The only locale whose pattern has more than three fraction digits.
    const bool isPosix = std::string_view(locale.getName()) == "en_US_POSIX";
    if (style == NumberStyle::decimal)
        return formatter.precision(icu::number::Precision::maxFraction(isPosix ? 6 : 3));
    return formatter.unit(icu::MeasureUnit::getPercent())
        .scale(icu::number::Scale::powerOfTen(2))
        .precision(icu::number::Precision::integer());
}

std::string utf8(const icu::UnicodeString& text) {
    std::string out;
    return text.toUTF8String(out);
}

std::string numberText(std::string_view locale, NumberStyle style, NSNumber number) {
    const auto pattern = Foundation::detail::numberPattern(locale, style);
    std::string text;
    Foundation::detail::appendNumber(text, *pattern, pattern->positivePrefix, number);
    return text;
}

void expectIcuTexts(const icu::Locale& locale) {
    for (const NumberStyle style : {NumberStyle::decimal, NumberStyle::percent}) {
        const auto formatter = icuFormatter(locale, style);
        const auto where = [&] { return std::string(locale.getName()) + (style == NumberStyle::percent ? " %" : ""); };
        UErrorCode status = U_ZERO_ERROR;
        for (const double value : doubles)
            ASSERT_EQ(numberText(locale.getName(), style, value),
                      utf8(formatter.formatDouble(value, status).toString(status)))
                << where() << " " << value;
        for (const std::int64_t value : integers)
            ASSERT_EQ(numberText(locale.getName(), style, value),
                      utf8(formatter.formatInt(value, status).toString(status)))
                << where() << " " << value;
        ASSERT_EQ(numberText(locale.getName(), style, std::numeric_limits<std::uint64_t>::max()),
                  utf8(formatter.formatDecimal("18446744073709551615", status).toString(status)));
        ASSERT_TRUE(U_SUCCESS(status)) << where();
    }
}

TEST(Numbers, MatchIcuInEveryLocale) {
    int count = 0;
    UErrorCode status = U_ZERO_ERROR;
    const icu::LocalUEnumerationPointer all(uloc_openAvailableByType(ULOC_AVAILABLE_WITH_LEGACY_ALIASES, &status));
    for (; const char* name = uenum_next(all.getAlias(), nullptr, &status); ++count) {
        // These locales have stored patterns; the locales after the loop get theirs from ICU.
        ASSERT_TRUE(Intl::knownNumberPattern(name, NumberStyle::percent)) << name;
        expectIcuTexts(icu::Locale(name));
    }
    ASSERT_GT(count, 800);
    for (const char* locale :
         {"ar_EG@numbers=latn", "en@numbers=arab", "zh@numbers=hanidec", "hi@numbers=deva", "root"})
        expectIcuTexts(icu::Locale(locale));
}

TEST(Numbers, OfRandomValuesMatchIcu) {
    const auto formatter = icuFormatter("en", NumberStyle::decimal);
    std::uint64_t state = 1;
    for (int i = 0; i < 200'000; ++i) {
        state = state * 6364136223846793005U + 1442695040888963407U;
        // Random numbers with four fraction digits, half of them exactly between two rounded values.
        const auto whole = static_cast<double>(state >> (20 + i % 40));
        const double value = i % 2 == 0 ? whole / 10'000 : whole / 1'000 + 0.0005;
        UErrorCode status = U_ZERO_ERROR;
        ASSERT_EQ(numberText("en", NumberStyle::decimal, value),
                  utf8(formatter.formatDouble(value, status).toString(status)))
            << std::hexfloat << value;
    }
}

TEST(Numbers, OfUnknownLocalesFollowTheRootLocale) {
    const icu::Locale before;
    UErrorCode status = U_ZERO_ERROR;
    icu::Locale::setDefault("de_DE", status);
    for (const char* locale : {"xx_YY", "", "!!", "q@numbers=nothing", "root"})
        EXPECT_EQ(numberText(locale, NumberStyle::decimal, 1234.5), "1,234.5") << locale;
    EXPECT_EQ(numberText(std::string(5'000, 'x'), NumberStyle::decimal, 1234.5), "1,234.5");
    EXPECT_EQ(numberText("xx@numbers=arab", NumberStyle::decimal, 1234.5), "١٬٢٣٤٫٥");
    // Roman numerals are not positional, so they are not used.
    EXPECT_EQ(numberText("de@numbers=roman", NumberStyle::decimal, 1234.5), "1.234,5");
    icu::Locale::setDefault(before, status);
}

} // namespace
