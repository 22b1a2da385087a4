// Plural forms, numbers with a noun, and ages.
#include "Lumora/LumoraStrings+Members.h"

#include "Foundation/DateComponents.h"
#include "Lumora/Localization.h"
#include "Lumora/LumoraStrings.h"
#include "Lumora/internal/Language.h"
#include "Runtime/Attempt.h"
#include <algorithm>
#include <array>

namespace Lumora {

using Corvane::LocalizationCode;

namespace LumoraStrings::Localizable {

namespace {

// Remainders keep the sign of the count, so a negative count always selects `many`.
const std::string& chosen(std::int64_t count, const std::string& one, const std::string& two, const std::string& many) {
    if (const std::int64_t tail = count % 100; tail >= 11 && tail <= 19)
        return many;
    switch (count % 10) {
    case 1:
        return one;
    case 2:
    case 3:
    case 4:
        return two;
    default:
        return many;
    }
}

std::string phrase(std::int64_t count, const std::string& one, const std::string& two, const std::string& many) {
    return Runtime::attempt(
        [&]() -> std::string { return std::to_string(count) + " " + chosen(count, one, two, many); });
}

} // namespace

std::string getSuffix(std::int64_t count, const PluralForms& forms) {
    return Runtime::attempt([&]() -> std::string { return chosen(count, forms.one, forms.two, forms.many); });
}

std::string locYears(std::int64_t count) {
    return phrase(count, year1(), year2(), year5());
}

std::string locDays(std::int64_t count) {
    return phrase(count, day1(), day2(), day5());
}

std::string locHours(std::int64_t count) {
    return phrase(count, hour1(), hour2(), hour5());
}

std::string locWeeks(std::int64_t count) {
    return phrase(count, week1(), week2(), week5());
}

} // namespace LumoraStrings::Localizable

namespace {

// Languages whose ages are locYears(); the others use legacyTrYear(). The list is the application's: Russian is not in
// it, although the rule of getSuffix() is the Russian one.
constexpr std::array<LocalizationCode, 7> locYearsCodes = {
    LocalizationCode::en, LocalizationCode::de, LocalizationCode::tr,    LocalizationCode::ko,
    LocalizationCode::vi, LocalizationCode::ja, LocalizationCode::zhHans};

} // namespace

std::string Localization::legacyTrYear(std::int64_t value) {
    return Runtime::attempt([&]() -> std::string {
        Foundation::NSDateComponentsFormatter formatter;
        Foundation::NSCalendar calendar = formatter.calendar();
        calendar.setLocale(detail::currentLocale());
        formatter.setAllowedUnits(Foundation::NSCalendarUnit::year);
        formatter.setUnitsStyle(Foundation::NSDateComponentsFormatter::UnitsStyle::full);
        formatter.setMaximumUnitCount(1);
        formatter.setCalendar(std::move(calendar));
        Foundation::NSDateComponents components;
        components.year = value;
        return formatter.stringFromDateComponents(components).value_or("");
    });
}

std::string Localization::legacyTrAge(std::int64_t age) {
    return Runtime::attempt([&] {
        const bool usesLocYears = std::ranges::find(locYearsCodes, detail::currentCode()) != locYearsCodes.end();
        return usesLocYears ? LumoraStrings::Localizable::locYears(age) : legacyTrYear(age);
    });
}

} // namespace Lumora
