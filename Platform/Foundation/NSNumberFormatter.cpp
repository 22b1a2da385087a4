#include "Foundation/NSNumberFormatter.h"

#include "Foundation/internal/NumberText.h"

namespace Foundation {

namespace {

detail::Kept<Intl::NumberPattern> patternOf(const NSNumberFormatter& formatter) {
    const bool isPercent = formatter.numberStyle() == NSNumberFormatter::Style::percent;
    return detail::numberPattern(formatter.locale().identifier(),
                                 isPercent ? Intl::NumberStyle::percent : Intl::NumberStyle::decimal);
}

} // namespace

std::string NSNumberFormatter::plusSign() const {
    return patternOf(*this)->plusSign;
}

std::string NSNumberFormatter::positivePrefix() const {
    return positivePrefix_ ? *positivePrefix_ : patternOf(*this)->positivePrefix;
}

std::optional<std::string> NSNumberFormatter::stringFromNumber(const NSNumber& number) const {
    const auto pattern = patternOf(*this);
    std::string text;
    detail::appendNumber(text, *pattern, positivePrefix_ ? *positivePrefix_ : pattern->positivePrefix, number);
    return text;
}

} // namespace Foundation
