// Compares the precomputed plural rules with those of ICU.
#include "Intl/internal/PluralRules.h"

#include <gtest/gtest.h>
#include <iterator>
#include <sstream>
#include <unicode/locid.h>
#include <unicode/numberformatter.h>
#include <unicode/plurrule.h>
#include <unicode/upluralrules.h>

namespace {

using Intl::PluralOperands;

std::string icuCategory(const icu::PluralRules& rules, const std::string& number) {
    const std::size_t point = number.find('.');
    const int places = point == std::string::npos ? 0 : static_cast<int>(number.size() - point - 1);
    UErrorCode status = U_ZERO_ERROR;
    const auto formatted = icu::number::NumberFormatter::withLocale(icu::Locale::getRoot())
                               .precision(icu::number::Precision::fixedFraction(places))
                               .formatDecimal(number, status);
    std::string name;
    rules.select(formatted, status).toUTF8String(name);
    return name;
}

std::string ourCategory(std::string_view language, std::string_view number) {
    return std::string(Intl::pluralCategoryNames[indexOf(pluralCategory(language, Intl::pluralOperands(number)))]);
}

TEST(PluralRules, MatchIcuInEveryLanguage) {
    std::istringstream further("1000 20000 100000 1000000 1000001 1100000 21000000 100000000000021 900000000000000000 "
                               "0.0 0.1 0.01 1.0 1.00 1.1 1.10 1.21 2.0 2.5 5.02 10.0 11.0");
    std::vector<std::string> numbers{std::istream_iterator<std::string>(further), {}};
    for (int number = 0; number <= 120; ++number)
        numbers.push_back(std::to_string(number));
    std::int32_t count = 0;
    const icu::Locale* const locales = icu::Locale::getAvailableLocales(count);
    ASSERT_GT(count, 100);
    for (std::int32_t i = 0; i < count; ++i) {
        UErrorCode status = U_ZERO_ERROR;
        const std::unique_ptr<icu::PluralRules> rules(icu::PluralRules::forLocale(locales[i], status));
        ASSERT_TRUE(U_SUCCESS(status));
        for (const std::string& number : numbers)
            ASSERT_EQ(ourCategory(locales[i].getName(), number), icuCategory(*rules, number))
                << locales[i].getName() << ' ' << number;
    }
}

TEST(PluralRules, KnowTagsOfAllKinds) {
    EXPECT_EQ(ourCategory("ru", "21"), "one");
    EXPECT_EQ(ourCategory("ru-RU", "22"), "few");
    EXPECT_EQ(ourCategory("sr-Latn-RS", "25"), "other");
    EXPECT_EQ(ourCategory("pt", "0"), "one");
    EXPECT_EQ(ourCategory("pt-PT", "0"), "other");
    EXPECT_EQ(ourCategory("PT_pt", "0"), "other");
    EXPECT_EQ(ourCategory("zh-Hans", "1"), "other");
    for (const char* tag : {"", "xx", "-", "en-a-very-long-tag-of-a-language", "_en"})
        EXPECT_EQ(ourCategory(tag, "5"), "other") << tag;
    EXPECT_EQ(Intl::pluralCategories("ru").all, 0b111010); // other, many, few, one
    EXPECT_EQ(Intl::pluralCategories("ru").ofIntegers, 0b011010);
    EXPECT_EQ(Intl::pluralCategories("xx").all, 0b100000);
}

TEST(PluralRules, UseDigitsAsPrinted) {
    EXPECT_EQ(Intl::pluralOperands("12.50"), (PluralOperands{.i = 12, .v = 2, .w = 1, .f = 50, .t = 5}));
    EXPECT_EQ(Intl::pluralOperands("0.05"), (PluralOperands{.i = 0, .v = 2, .w = 2, .f = 5, .t = 5}));
    EXPECT_EQ(Intl::pluralOperands("7"), (PluralOperands{.i = 7}));
    EXPECT_EQ(Intl::pluralOperands("1.250e+02"), (PluralOperands{.i = 125, .v = 1}));
    EXPECT_EQ(Intl::pluralOperands("1E+06"), (PluralOperands{.i = 1'000'000}));
    EXPECT_EQ(Intl::pluralOperands("5.0e-02"), (PluralOperands{.i = 0, .v = 3, .w = 2, .f = 50, .t = 5}));
    EXPECT_EQ(Intl::pluralOperands("1e+99999999999"), (PluralOperands{.i = 1})); // too large for an int: ignored
    EXPECT_EQ(Intl::pluralOperands("inf"), PluralOperands());
    EXPECT_NE(Intl::pluralOperands("1" + std::string(400, '0')).i, 0U);
}

} // namespace
