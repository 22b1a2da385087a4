// Foundation/DateComponents.h
// Formats a number of years as a locale spells it. Years are the only supported unit.
// Text: UTF-8. Threads: concurrent const calls on one formatter are safe; changes need external synchronization.
#pragma once

#include "Foundation/Locale.h"
#include "Runtime/Export.h"
#include <cstdint>
#include <optional>
#include <string>

namespace Foundation {

// The units that a formatter may use, each a bit with the value that the application's code expects.
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

// An amount of time; fields without a value are not part of it.
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
    // The largest number of units in a text; 0 means no limit. Has no effect, as years are the only unit.
    [[nodiscard]] int maximumUnitCount() const noexcept { return maximumUnitCount_; }
    void setMaximumUnitCount(int count) noexcept { maximumUnitCount_ = count; }
    [[nodiscard]] const NSCalendar& calendar() const noexcept { return calendar_; }
    void setCalendar(NSCalendar calendar) noexcept { calendar_ = std::move(calendar); }

    // The years of `components` as the calendar's locale spells them, with its digits. No value when years are not
    // among the allowed units or have no value, or when the library's language data is missing.
    [[nodiscard]] std::optional<std::string> stringFromDateComponents(const NSDateComponents& components) const;

private:
    NSCalendarUnit allowedUnits_ = NSCalendarUnit::none;
    UnitsStyle unitsStyle_ = UnitsStyle::full;
    int maximumUnitCount_ = 0;
    NSCalendar calendar_ = NSCalendar::current();
};

} // namespace Foundation
