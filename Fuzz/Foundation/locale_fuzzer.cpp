// Takes the input for the identifier of a locale and formats numbers and years in it. Then takes the input for a list
// of languages and chooses one of a bundle's languages for each.
#include "Foundation/DateComponents.h"
#include "Foundation/NSNumberFormatter.h"
#include "Foundation/internal/HostState.h"
#include "Foundation/internal/LanguageChoice.h"
#include "Intl/internal/Intl.h"

#include "../Require.h"
#include <array>
#include <cmath>
#include <sstream>

namespace {

void writeNumbers(const Foundation::Locale& locale) {
    using Style = Foundation::NSNumberFormatter::Style;
    Foundation::NSNumberFormatter formatter;
    formatter.setLocale(locale);
    for (const Style style : {Style::decimal, Style::percent}) {
        formatter.setNumberStyle(style);
        for (const double number : {-1234567.891, 0.5, double{INFINITY}, double{NAN}})
            require(!formatter.stringFromNumber(number).value_or("").empty());
    }
    formatter.setPositivePrefix(formatter.plusSign());
    require(formatter.stringFromNumber(1).value_or("").starts_with(formatter.plusSign()));
}

void writeYears(const Foundation::Locale& locale) {
    Foundation::NSCalendar calendar = Foundation::NSCalendar::current();
    calendar.setLocale(locale);
    Foundation::NSDateComponentsFormatter years;
    years.setAllowedUnits(Foundation::NSCalendarUnit::year);
    years.setCalendar(calendar);
    for (const std::int64_t count : {0, 1, 2, 5, 11, 1000000, -3})
        require(!years.stringFromDateComponents({.year = count}).value_or("").empty());
}

// `list` has the form of the environment variable LANGUAGE: "de:fr". One bundle has the wanted language itself,
// another has `list` as the name of a language instead.
void chooseLanguages(const std::string& list) {
    std::istringstream languages(list);
    for (std::string language; std::getline(languages, language, ':');) {
        const std::string wanted = Foundation::detail::languageTag(language);
        for (const std::string& other : {wanted, list}) {
            const std::array<std::string, 6> supported = {"en", "zh-Hans", "sr", "pt-PT", "es-419", other};
            const auto chosen = Foundation::detail::chooseLanguage(wanted, supported);
            require(!chosen || *chosen < supported.size());
            if (other == wanted) // an exact match is chosen
                require(chosen && supported[*chosen] == wanted);
        }
    }
}

} // namespace

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
    const std::string identifier(reinterpret_cast<const char*>(data), size);
    const Foundation::Locale locale(identifier);
    writeNumbers(locale);
    // Checks that the plug-in with ICU was loaded: nothing else knows a locale like this.
    require(Intl::numberPattern("de@numbers=arab", Intl::NumberStyle::decimal).digits[0] != "0");
    writeYears(locale);
    chooseLanguages(identifier);
    return 0;
}
