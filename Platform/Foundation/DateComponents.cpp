#include "Foundation/DateComponents.h"

#include "Foundation/internal/NumberText.h"
#include <memory>
#include <string_view>

namespace Foundation {

namespace {

using YearPhrases = std::unique_ptr<const Intl::YearPhrases>;

detail::Kept<YearPhrases> yearPhrases(const Intl::Services& services, std::string_view locale) {
    static constinit detail::LocaleCache<YearPhrases> cache;
    return cache.get(locale, [&] { return services.yearPhrases(locale); });
}

} // namespace

std::optional<std::string>
NSDateComponentsFormatter::stringFromDateComponents(const NSDateComponents& components) const {
    const Intl::Services* services = Intl::services();
    if (allowedUnits_ != NSCalendarUnit::year || !components.year || services == nullptr)
        return std::nullopt;
    const std::string& locale = calendar_.locale().identifier();
    const auto phrases = yearPhrases(*services, locale);
    if (*phrases == nullptr)
        return std::nullopt;
    const std::string_view phrase = (*phrases)->phrase(*components.year);
    static constexpr std::string_view numberPlace = "{0}";
    const std::size_t at = phrase.find(numberPlace);
    std::string text(phrase.substr(0, at));
    if (at != std::string_view::npos) {
        const auto pattern = detail::numberPattern(locale, Intl::NumberStyle::decimal);
        detail::appendNumber(text, *pattern, pattern->positivePrefix, *components.year);
        text += phrase.substr(at + numberPlace.size());
    }
    return text;
}

} // namespace Foundation
