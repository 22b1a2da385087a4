#include "Foundation/DateComponents.h"

#include "Foundation/internal/NumberText.h"
#include "Intl/internal/PluralRules.h"
#include <string>
#include <string_view>
#include <vector>

namespace Foundation {

namespace {

constexpr std::string_view numberPlace = "{0}";

// A locale's form for years ("{0} years"), divided at the place of its number, which some lack: Arabic for 1 and 2.
struct Form {
    explicit Form(std::string_view form)
        : before(form.substr(0, form.find(numberPlace))), hasNumber(before.size() < form.size()),
          after(hasNumber ? form.substr(before.size() + numberPlace.size()) : "") {}

    bool empty() const noexcept { return before.empty() && !hasNumber; }

    std::string before;
    bool hasNumber;
    std::string after;
};

// What is needed to write years in a locale.
struct Years {
    explicit Years(std::string_view locale)
        : rules(locale.substr(0, locale.find_first_of(".@"))), // without character set and keywords
          pattern(detail::numberPattern(locale, Intl::NumberStyle::decimal)) {
        for (const std::string& form : Intl::yearForms(locale).forms)
            forms.emplace_back(form);
    }

    // The form for `count` years. Negative counts use the form of their absolute value.
    const Form& formFor(std::int64_t count) const noexcept {
        const auto magnitude = count < 0 ? -static_cast<std::uint64_t>(count) : static_cast<std::uint64_t>(count);
        const Form& form = forms[indexOf(rules.category({.i = magnitude}))];
        return form.empty() ? forms[indexOf(Intl::PluralCategory::other)] : form;
    }

    Intl::PluralRules rules;
    detail::Kept<Intl::NumberPattern> pattern;
    std::vector<Form> forms; // by PluralCategory
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
    const auto years = yearsOf(calendar_.locale().identifier());
    const Form& form = years->formFor(*components.year);
    if (form.empty())
        return std::nullopt;
    std::string text = form.before;
    if (form.hasNumber)
        detail::appendNumber(text, *years->pattern, years->pattern->positivePrefix, *components.year);
    text += form.after;
    return text;
}

} // namespace Foundation
