#include "Foundation/Host.h"
#include "Foundation/NSNumberFormatter.h"

#include <cmath>
#include <gtest/gtest.h>
#include <latch>
#include <limits>
#include <thread>
#include <vector>

namespace {

using Foundation::Locale;
using Foundation::NSNumber;
using Foundation::NSNumberFormatter;

constexpr auto smallest = std::numeric_limits<std::int64_t>::min();
constexpr auto largest = std::numeric_limits<std::int64_t>::max();
constexpr auto largestUnsigned = std::numeric_limits<std::uint64_t>::max();

std::string text(const char* locale, NSNumber number,
                 NSNumberFormatter::Style style = NSNumberFormatter::Style::decimal) {
    NSNumberFormatter formatter;
    formatter.setLocale(Locale(locale));
    formatter.setNumberStyle(style);
    return formatter.stringFromNumber(number).value_or("none");
}
std::string percent(const char* locale, NSNumber number) {
    return text(locale, number, NSNumberFormatter::Style::percent);
}

TEST(Number, KeepsItsValue) {
    EXPECT_EQ(NSNumber(smallest).int64Value(), smallest);
    EXPECT_EQ(NSNumber(largestUnsigned).uint64Value(), largestUnsigned);
    EXPECT_EQ(NSNumber(true).int64Value(), 1);
    EXPECT_EQ(NSNumber(static_cast<short>(-3)).doubleValue(), -3.0);
    EXPECT_EQ(NSNumber(0.5F).doubleValue(), 0.5);
    EXPECT_TRUE(NSNumber(2.0).isFloating());
    EXPECT_FALSE(NSNumber(2U).isFloating());
    EXPECT_TRUE(NSNumber(0.1).boolValue());
    EXPECT_FALSE(NSNumber(-0.0).boolValue());
    EXPECT_FALSE(NSNumber(0).boolValue());
}

TEST(Number, GivesTheNearestValueOfAnotherType) {
    const struct {
        int line;
        NSNumber number;
        std::int64_t asSigned;
        std::uint64_t asUnsigned;
    } cases[] = {
        {__LINE__, -1, -1, 0},
        {__LINE__, largestUnsigned, largest, largestUnsigned},
        {__LINE__, 2.9, 2, 2},
        {__LINE__, -2.9, -2, 0},
        {__LINE__, std::nan(""), 0, 0},
        {__LINE__, HUGE_VAL, largest, largestUnsigned},
        {__LINE__, -HUGE_VAL, smallest, 0},
        {__LINE__, 0x1p63, largest, std::uint64_t{1} << 63},
        {__LINE__, -0x1p63, smallest, 0},
        {__LINE__, 0x1p64, largest, largestUnsigned},
    };
    for (const auto& one : cases) {
        EXPECT_EQ(one.number.int64Value(), one.asSigned) << "line " << one.line;
        EXPECT_EQ(one.number.uint64Value(), one.asUnsigned) << "line " << one.line;
    }
}

TEST(NumberFormatter, WritesDecimalsAndPercentagesInEveryLanguage) {
    const struct {
        const char* locale;
        const char* decimal; // text of -1234567.8915
        const char* percent; // text of 0.256
    } cases[] = {
        {"ar", "\u061C-١٬٢٣٤٬٥٦٧٫٨٩٢", "٢٦٪\u061C"},
        {"de", "-1.234.567,892", "26\u00A0%"},
        {"en", "-1,234,567.892", "26%"},
        {"es", "-1.234.567,892", "26\u00A0%"},
        {"es-419", "-1,234,567.892", "26\u00A0%"},
        {"fr", "-1\u202F234\u202F567,892", "26\u00A0%"},
        {"id", "-1.234.567,892", "26%"},
        {"it", "-1.234.567,892", "26%"},
        {"ja", "-1,234,567.892", "26%"},
        {"ko", "-1,234,567.892", "26%"},
        {"nl", "-1.234.567,892", "26%"},
        {"pl", "-1\u00A0234\u00A0567,892", "26%"},
        {"pt-BR", "-1.234.567,892", "26%"},
        {"pt-PT", "-1\u00A0234\u00A0567,892", "26%"},
        {"ru", "-1\u00A0234\u00A0567,892", "26\u00A0%"},
        {"th", "-1,234,567.892", "26%"},
        {"tr", "-1.234.567,892", "%26"},
        {"vi", "-1.234.567,892", "26%"},
        {"zh-Hans", "-1,234,567.892", "26%"},
    };
    for (const auto& one : cases) {
        EXPECT_EQ(text(one.locale, -1234567.8915), one.decimal) << one.locale;
        EXPECT_EQ(percent(one.locale, 0.256), one.percent) << one.locale;
    }
}

// Rounds the shortest decimal digits that identify the double: 0.0015 counts as a half, although the double is not one.
TEST(NumberFormatter, RoundsHalvesToEvenByTheShortestDigits) {
    const struct {
        int line;
        NSNumber number;
        const char* expected;
    } cases[] = {
        {__LINE__, 0.0005, "0"},
        {__LINE__, 0.0015, "0.002"},
        {__LINE__, 2.0005, "2"},
        {__LINE__, 1.0015, "1.002"},
        {__LINE__, 0.00051, "0.001"},
        {__LINE__, 999.9995, "1,000"},
        {__LINE__, -0.0001, "-0"},
        {__LINE__, -0.0, "-0"},
        {__LINE__, 2.50, "2.5"},
        {__LINE__, 5e-324, "0"},
        {__LINE__, 1e21, "1,000,000,000,000,000,000,000"},
        {__LINE__, HUGE_VAL, "∞"},
        {__LINE__, -HUGE_VAL, "-∞"},
        {__LINE__, -std::nan(""), "NaN"},
        {__LINE__, 0x1p63, "9,223,372,036,854,776,000"},
        {__LINE__, smallest, "-9,223,372,036,854,775,808"},
        {__LINE__, largestUnsigned, "18,446,744,073,709,551,615"},
    };
    for (const auto& one : cases)
        EXPECT_EQ(text("en", one.number), one.expected) << "line " << one.line;
    EXPECT_EQ(percent("en", 0.125), "12%");
    EXPECT_EQ(percent("en", 0.135), "14%");
    EXPECT_EQ(percent("en", 12), "1,200%");
    EXPECT_EQ(percent("en", 0), "0%");
}

TEST(NumberFormatter, UsesASetPrefixForNonnegativeNumbers) {
    NSNumberFormatter formatter;
    formatter.setLocale(Locale("ar"));
    EXPECT_EQ(formatter.positivePrefix(), "");
    formatter.setPositivePrefix(formatter.plusSign());
    EXPECT_EQ(formatter.positivePrefix(), "\u061C+");
    EXPECT_EQ(formatter.stringFromNumber(1500), "\u061C+١٬٥٠٠");
    EXPECT_EQ(formatter.stringFromNumber(0), "\u061C+٠");
    EXPECT_EQ(formatter.stringFromNumber(-3), "\u061C-٣");
    formatter.setLocale(Locale("en"));
    formatter.setPositivePrefix("");
    EXPECT_EQ(formatter.stringFromNumber(1500), "1,500");
}

TEST(NumberFormatter, StartsWithTheCurrentLocale) {
    Foundation::Host::setCurrentLocale("de_AT");
    EXPECT_EQ(NSNumberFormatter().stringFromNumber(1234567.5), "1\u00A0234\u00A0567,5");
    Foundation::Host::setCurrentLocale("de_CH");
    EXPECT_EQ(NSNumberFormatter().stringFromNumber(1234567.5), "1’234’567.5");
    Foundation::Host::reset();
}

TEST(NumberFormatter, ServesThreadsThatUseALocaleForTheFirstTime) {
    static constexpr const char* locales[] = {"de_LI", "fr_BE", "ar_DZ", "ru_KZ", "es_PE", "pt_MO", "hi_IN", "sv_FI"};
    std::vector<std::vector<std::string>> seen(8, std::vector<std::string>(8));
    std::latch ready(8);
    std::vector<std::jthread> threads;
    for (std::size_t i = 0; i < 8; ++i)
        threads.emplace_back([&, i] {
            ready.arrive_and_wait();
            for (std::size_t n = 0; n < 8; ++n)
                seen[i][(i + n) % 8] = text(locales[(i + n) % 8], 1234567.5) + " " + percent(locales[(i + n) % 8], 0.5);
        });
    threads.clear();
    for (const auto& texts : seen)
        EXPECT_EQ(texts, seen.front());
    EXPECT_EQ(seen[0][0], "1’234’567.5 50%");
}

} // namespace
