// Reads the input as the identifier of a locale and as a language that a user wants.
#include "Foundation/DateComponents.h"
#include "Foundation/NSNumberFormatter.h"
#include "Intl/Intl.h"

#include <array>

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
    const std::string identifier(reinterpret_cast<const char*>(data), size);
    Foundation::NSNumberFormatter formatter;
    formatter.setLocale(Foundation::Locale(identifier));
    for (const auto style :
         {Foundation::NSNumberFormatter::Style::decimal, Foundation::NSNumberFormatter::Style::percent}) {
        formatter.setNumberStyle(style);
        if (formatter.stringFromNumber(-1234567.891).value_or("").empty())
            __builtin_trap();
    }
    Foundation::NSCalendar calendar = Foundation::NSCalendar::current();
    calendar.setLocale(formatter.locale());
    Foundation::NSDateComponentsFormatter years;
    years.setAllowedUnits(Foundation::NSCalendarUnit::year);
    years.setCalendar(calendar);
    const Intl::Services* services = Intl::services();
    if (services == nullptr)
        return 0;
    if (years.stringFromDateComponents({.year = 5}).value_or("").empty())
        __builtin_trap();
    const std::array<std::string, 4> supported = {"en", "zh-Hans", "sr", identifier};
    if (const auto index = services->matchLanguage(identifier, supported); index && *index >= supported.size())
        __builtin_trap();
    return 0;
}
