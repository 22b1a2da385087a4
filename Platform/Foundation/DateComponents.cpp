#include "Foundation/DateComponents.h"

#include "Foundation/internal/NumberText.h"
#include "Intl/internal/PluralRules.h"
#include <string_view>

namespace Foundation {

namespace {

struct Years {
    explicit Years(std::string_view locale)
        : years(Intl::yearForms(locale)), rules(locale.substr(0, locale.find_first_of(".@"))) {}

    // The form for `count` years. Negative counts use the form of their absolute value.
    const std::string& formFor(std::int64_t count) const noexcept {
        const auto magnitude = count < 0 ? -static_cast<std::uint64_t>(count) : static_cast<std::uint64_t>(count);
        const std::string& form = years.forms[indexOf(rules.category({.i = magnitude}))];
        return form.empty() ? years.forms[indexOf(Intl::PluralCategory::other)] : form;
    }

    Intl::YearForms years;
    Intl::PluralRules rules;
};

detail::Kept<Years> yearsOf(std::string_view locale) {
    static constinit detail::LocaleCache<Years> cache;
    return cache.get(locale, [&] { return Years(locale); });
}

} // namespace

std::optional<std::string>
NSDateComponentsFormatter::stringFromDateComponents(const NSDateComponents& components) const {
    if (allowedUnits_ != NSCalendarUnit::year || !components.year)
        return std::nullopt;
    const std::string& locale = calendar_.locale().identifier();
    const auto years = yearsOf(locale);
    const std::string_view form = years->formFor(*components.year);
    if (form.empty())
        return std::nullopt;
    static constexpr std::string_view numberPlace = "{0}";
    const std::size_t at = form.find(numberPlace);
    std::string text(form.substr(0, at));
    if (at != std::string_view::npos) {
        const auto pattern = detail::numberPattern(locale, Intl::NumberStyle::decimal);
        detail::appendNumber(text, *pattern, pattern->positivePrefix, *components.year);
        text += form.substr(at + numberPlace.size());
    }
    return text;
}

} // namespace Foundation
