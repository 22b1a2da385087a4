// Foundation/DateComponents.h
// A number of years in a locale's words. Of the platform's calendars this is what is offered: years, spelled out.
// Text: UTF-8. Threads: values; one formatter may be read by several threads, not changed meanwhile.
#pragma once

#include "Foundation/Locale.h"
#include "Runtime/Export.h"
#include <cstdint>
#include <optional>
#include <string>

namespace Foundation {

// Spans of time that a formatter may name; a set of them.
enum class NSCalendarUnit : std::uint32_t { none = 0, year = 1U << 2 };

class LUMORA_EXPORT NSCalendar {
public:
    // The user's calendar, in the locale that is current now.
    [[nodiscard]] static NSCalendar current() { return NSCalendar(Locale::current()); }

    [[nodiscard]] const Locale& locale() const noexcept { return locale_; }
    void setLocale(Locale locale) noexcept { locale_ = std::move(locale); }

private:
    explicit NSCalendar(Locale locale) noexcept : locale_(std::move(locale)) {}

    Locale locale_;
};

// Amounts of time; a field without a value is not part of them.
struct NSDateComponents {
    std::optional<std::int64_t> year;
};

class LUMORA_EXPORT NSDateComponentsFormatter {
public:
    enum class UnitsStyle { full }; // the unit spelled out: "25 years"

    [[nodiscard]] NSCalendarUnit allowedUnits() const noexcept { return allowedUnits_; }
    void setAllowedUnits(NSCalendarUnit units) noexcept { allowedUnits_ = units; }
    [[nodiscard]] UnitsStyle unitsStyle() const noexcept { return unitsStyle_; }
    void setUnitsStyle(UnitsStyle style) noexcept { unitsStyle_ = style; }
    // How many units a text may name; 0: any number.
    [[nodiscard]] int maximumUnitCount() const noexcept { return maximumUnitCount_; }
    void setMaximumUnitCount(int count) noexcept { maximumUnitCount_ = count; }
    [[nodiscard]] const NSCalendar& calendar() const noexcept { return calendar_; }
    void setCalendar(NSCalendar calendar) noexcept { calendar_ = std::move(calendar); }

    // The components' years in the words of the calendar's locale, their number in its digits. No value unless years
    // are allowed and given, and none without the library's language data.
    [[nodiscard]] std::optional<std::string> stringFromDateComponents(const NSDateComponents& components) const;

private:
    NSCalendarUnit allowedUnits_ = NSCalendarUnit::none;
    UnitsStyle unitsStyle_ = UnitsStyle::full;
    int maximumUnitCount_ = 0;
    NSCalendar calendar_ = NSCalendar::current();
};

} // namespace Foundation
