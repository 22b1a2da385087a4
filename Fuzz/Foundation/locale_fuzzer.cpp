// Reads the input as the identifier of a locale, and as the languages that a host names and a bundle has.
#include "Foundation/DateComponents.h"
#include "Foundation/NSNumberFormatter.h"
#include "Foundation/internal/HostState.h"
#include "Foundation/internal/LanguageChoice.h"
#include "Intl/internal/Intl.h"

#include <algorithm>
#include <array>
#include <cmath>
#include <cstdlib>

namespace {

void require(bool holds) {
    if (!holds)
        std::abort();
}

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

// `host` is a list as LANGUAGE has it.
void chooseLanguages(std::string_view host) {
    std::vector<std::string> wanted;
    for (std::size_t at = 0; at <= host.size(); at = std::min(host.find(':', at), host.size()) + 1)
        wanted.push_back(Foundation::detail::languageTag(host.substr(at, host.find(':', at) - at)));
    for (const std::string& supportedToo : {wanted.front(), wanted.back(), std::string(host)}) {
        const std::array<std::string, 6> supported = {"en", "zh-Hans", "sr", "pt-PT", "es-419", supportedToo};
        auto chosen = Foundation::detail::chooseLanguages(wanted, supported);
        for (const std::string& language : chosen)
            require(std::ranges::find(supported, language) != supported.end());
        if (supportedToo == wanted.front()) // what is there to the letter is taken
            require(chosen.front() == wanted.front());
        std::ranges::sort(chosen);
        require(std::ranges::adjacent_find(chosen) == chosen.end());
    }
}

} // namespace

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
    const std::string identifier(reinterpret_cast<const char*>(data), size);
    const Foundation::Locale locale(identifier);
    writeNumbers(locale);
    require(Intl::services() != nullptr); // without its plug-in this would be a fuzzer of nothing
    writeYears(locale);
    chooseLanguages(identifier);
    return 0;
}
