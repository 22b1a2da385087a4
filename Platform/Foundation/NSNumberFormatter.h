// Foundation/NSNumberFormatter.h
// Writes numbers as a locale does.
// Text: UTF-8. Threads: values; one formatter may be read by several threads, not changed meanwhile.
// Cheap to make: what must be known of the locale is kept by the library.
#pragma once

#include "Foundation/Locale.h"
#include "Foundation/NSNumber.h"
#include "Runtime/Export.h"
#include <optional>
#include <string>

namespace Foundation {

class LUMORA_EXPORT NSNumberFormatter {
public:
    // decimal: at most three places after the point, whole numbers in full. percent: a hundred times the number,
    // rounded to a whole one, with the percent sign where the locale has it. Halves are rounded to even.
    enum class Style { decimal, percent };

    // Decimal, in the locale that is current now.
    NSNumberFormatter() : locale_(Locale::current()) {}

    [[nodiscard]] Style numberStyle() const noexcept { return style_; }
    void setNumberStyle(Style style) noexcept { style_ = style; }

    [[nodiscard]] const Locale& locale() const noexcept { return locale_; }
    void setLocale(Locale locale) noexcept { locale_ = std::move(locale); }

    // The locale's own, with the marks that keep it in its place in texts written from right to left.
    [[nodiscard]] std::string plusSign() const;

    // What stands before a number that is not negative, zero included; the locale's own until one is set.
    [[nodiscard]] std::string positivePrefix() const;
    void setPositivePrefix(std::string prefix) { positivePrefix_ = std::move(prefix); }

    // Both styles have a text for every number, infinities and not-a-number included. Without the library's language
    // data: ASCII digits, '-', '.', and no grouping.
    [[nodiscard]] std::optional<std::string> stringFromNumber(const NSNumber& number) const;

private:
    Locale locale_;
    Style style_ = Style::decimal;
    std::optional<std::string> positivePrefix_;
};

} // namespace Foundation
