// Foundation/NSNumberFormatter.h
// Formats numbers for a locale.
// Text: UTF-8. Threads: concurrent const calls on one formatter are safe; changes need external synchronization.
// Cheap to create: the library caches the locale's data.
#pragma once

#include "Foundation/Locale.h"
#include "Foundation/NSNumber.h"
#include "Runtime/Export.h"
#include <optional>
#include <string>

namespace Foundation {

class LUMORA_EXPORT NSNumberFormatter {
public:
    // decimal: at most three fraction digits. percent: a hundred times the number, rounded to an integer, with the
    // percent sign where the locale puts it. Halves are rounded to even.
    enum class Style { decimal, percent };

    // Decimal, in the current locale.
    NSNumberFormatter() : locale_(Locale::current()) {}

    [[nodiscard]] Style numberStyle() const noexcept { return style_; }
    void setNumberStyle(Style style) noexcept { style_ = style; }

    [[nodiscard]] const Locale& locale() const noexcept { return locale_; }
    void setLocale(Locale locale) noexcept { locale_ = std::move(locale); }

    // The locale's plus sign, with the bidirectional marks that it has in right-to-left locales.
    [[nodiscard]] std::string plusSign() const;

    // The prefix of nonnegative numbers; the locale's own until one is set.
    [[nodiscard]] std::string positivePrefix() const;
    void setPositivePrefix(std::string prefix) { positivePrefix_ = std::move(prefix); }

    // Always has a value, because both styles have a text for every number, including infinities and NaN. Without the
    // library's language data the result has ASCII digits, '-', '.', and no grouping.
    [[nodiscard]] std::optional<std::string> stringFromNumber(const NSNumber& number) const;

private:
    Locale locale_;
    Style style_ = Style::decimal;
    std::optional<std::string> positivePrefix_;
};

} // namespace Foundation
