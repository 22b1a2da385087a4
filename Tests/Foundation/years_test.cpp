#include "Foundation/DateComponents.h"

#include <gtest/gtest.h>
#include <limits>

namespace {

using Foundation::Locale;
using Foundation::NSCalendar;
using Foundation::NSCalendarUnit;
using Foundation::NSDateComponents;
using Foundation::NSDateComponentsFormatter;

NSDateComponentsFormatter formatterOf(const char* locale) {
    NSCalendar calendar = NSCalendar::current();
    calendar.setLocale(Locale(locale));
    NSDateComponentsFormatter formatter;
    formatter.setAllowedUnits(NSCalendarUnit::year);
    formatter.setUnitsStyle(NSDateComponentsFormatter::UnitsStyle::full);
    formatter.setMaximumUnitCount(1);
    formatter.setCalendar(calendar);
    return formatter;
}
std::string years(const char* locale, std::int64_t count) {
    return formatterOf(locale).stringFromDateComponents({.year = count}).value_or("none");
}

TEST(YearPhrases, AreInTheWordsOfEveryLanguage) {
    const struct {
        const char* locale;
        const char* one;
        const char* two;
        const char* many; // the phrase for 25
    } cases[] = {
        {"ar", "سنة", "سنتان", "٢٥ سنة"},         {"de", "1 Jahr", "2 Jahre", "25 Jahre"},
        {"en", "1 year", "2 years", "25 years"},  {"es", "1 año", "2 años", "25 años"},
        {"es-419", "1 año", "2 años", "25 años"}, {"fr", "1\u00A0an", "2 ans", "25 ans"},
        {"id", "1 tahun", "2 tahun", "25 tahun"}, {"it", "1 anno", "2 anni", "25 anni"},
        {"ja", "1 年", "2 年", "25 年"},          {"ko", "1년", "2년", "25년"},
        {"nl", "1 jaar", "2 jaar", "25 jaar"},    {"pl", "1 rok", "2 lata", "25 lat"},
        {"pt-BR", "1 ano", "2 anos", "25 anos"},  {"pt-PT", "1 ano", "2 anos", "25 anos"},
        {"ru", "1 год", "2 года", "25 лет"},      {"th", "1 ปี", "2 ปี", "25 ปี"},
        {"tr", "1 yıl", "2 yıl", "25 yıl"},       {"vi", "1 năm", "2 năm", "25 năm"},
        {"zh-Hans", "1年", "2年", "25年"},
    };
    for (const auto& one : cases) {
        EXPECT_EQ(years(one.locale, 1), one.one) << one.locale;
        EXPECT_EQ(years(one.locale, 2), one.two) << one.locale;
        EXPECT_EQ(years(one.locale, 25), one.many) << one.locale;
    }
}

TEST(YearPhrases, CoverEveryCount) {
    EXPECT_EQ(years("ru", 21), "21 год");
    EXPECT_EQ(years("ru", -22), "-22 года");
    EXPECT_EQ(years("ru", 1'000'011), "1\u00A0000\u00A0011 лет");
    EXPECT_EQ(years("en", 0), "0 years");
    EXPECT_EQ(years("ru", std::numeric_limits<std::int64_t>::max()),
              "9\u00A0223\u00A0372\u00A0036\u00A0854\u00A0775\u00A0807 лет");
    EXPECT_EQ(years("en", std::numeric_limits<std::int64_t>::min()), "-9,223,372,036,854,775,808 years");
}

TEST(YearPhrases, NeedAllowedAndGivenYears) {
    EXPECT_EQ(formatterOf("en").stringFromDateComponents(NSDateComponents()), std::nullopt);
    EXPECT_EQ(NSDateComponentsFormatter().stringFromDateComponents({.year = 5}), std::nullopt);
}

} // namespace
