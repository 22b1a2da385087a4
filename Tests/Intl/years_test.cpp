// Compares phrases of years with ICU in all of its locales.
#include "Foundation/DateComponents.h"

#include <gtest/gtest.h>
#include <limits>
#include <unicode/numberformatter.h>

namespace {

std::string years(const char* locale, std::int64_t count) {
    Foundation::NSCalendar calendar = Foundation::NSCalendar::current();
    calendar.setLocale(Foundation::Locale(locale));
    Foundation::NSDateComponentsFormatter formatter;
    formatter.setAllowedUnits(Foundation::NSCalendarUnit::year);
    formatter.setCalendar(calendar);
    return formatter.stringFromDateComponents({.year = count}).value_or("none");
}

TEST(Years, MatchIcuInEveryLocale) {
    int size = 0;
    const icu::Locale* locales = icu::Locale::getAvailableLocales(size);
    ASSERT_GT(size, 500);
    for (int i = 0; i < size; ++i) {
        const auto formatter = icu::number::NumberFormatter::withLocale(locales[i])
                                   .unit(icu::MeasureUnit::getYear())
                                   .unitWidth(UNUM_UNIT_WIDTH_FULL_NAME);
        for (const std::int64_t count :
             {std::int64_t{0}, std::int64_t{1}, std::int64_t{2}, std::int64_t{3}, std::int64_t{5}, std::int64_t{11},
              std::int64_t{21}, std::int64_t{25}, std::int64_t{100}, std::int64_t{101}, std::int64_t{2022},
              std::int64_t{1'000'000}, std::int64_t{100'000'000'000}, std::int64_t{-1}, std::int64_t{-5},
              std::numeric_limits<std::int64_t>::max(), std::numeric_limits<std::int64_t>::min()}) {
            UErrorCode status = U_ZERO_ERROR;
            std::string expected;
            formatter.formatInt(count, status).toString(status).toUTF8String(expected);
            ASSERT_EQ(years(locales[i].getName(), count), expected) << locales[i].getName() << " " << count;
        }
    }
}

} // namespace
