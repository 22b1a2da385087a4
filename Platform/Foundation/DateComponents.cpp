#include "Foundation/DateComponents.h"

#include "Foundation/internal/NumberText.h"
#include "Intl/internal/PluralRules.h"
#include <string_view>

namespace Foundation {

namespace {

detail::Kept<Intl::YearForms> yearForms(std::string_view locale) {
    static constinit detail::LocaleCache<Intl::YearForms> cache;
    return cache.get(locale, [&] { return Intl::yearForms(locale); });
}

// The form for `count` years in the language of `locale`. Negative counts use the form of their absolute value.
const std::string& formFor(std::int64_t count, const Intl::YearForms& years, std::string_view locale) {
    const auto magnitude = count < 0 ? -static_cast<std::uint64_t>(count) : static_cast<std::uint64_t>(count);
    const std::string_view language = locale.substr(0, locale.find_first_of(".@"));
    const std::string& form = years.forms[indexOf(Intl::pluralCategory(language, {.i = magnitude}))];
    return form.empty() ? years.forms[indexOf(Intl::PluralCategory::other)] : form;
}

} // namespace

std::optional<std::string>
NSDateComponentsFormatter::stringFromDateComponents(const NSDateComponents& components) const {
    if (allowedUnits_ != NSCalendarUnit::year || !components.year)
        return std::nullopt;
    const std::string& locale = calendar_.locale().identifier();
    const auto years = yearForms(locale);
    const std::string_view form = formFor(*components.year, *years, locale);
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
