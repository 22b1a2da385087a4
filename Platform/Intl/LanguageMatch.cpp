#include "Intl/internal/LanguageMatch.h"

#include "Intl/internal/IcuText.h"
#include <unicode/localematcher.h>
#include <vector>

namespace Intl {

namespace {

// Replaces outdated language codes: "iw" becomes "he".
icu::Locale canonical(std::string_view identifier) {
    // A modifier such as "@euro" does not affect the match.
    icu::Locale locale = icuLocale(identifier.substr(0, identifier.find('@')));
    UErrorCode status = U_ZERO_ERROR;
    locale.canonicalize(status);
    return succeeded(status) ? locale : icu::Locale::getRoot();
}

// "no" means Bokmål, but ICU's canonical form keeps "no" and "nb" apart.
std::string_view languageOf(const icu::Locale& locale) {
    const std::string_view language = locale.getLanguage();
    return language == "no" ? "nb" : language;
}

} // namespace

std::optional<std::size_t> bestLanguage(std::string_view desired, std::span<const std::string> supported) {
    const icu::Locale user = canonical(desired);
    if (languageOf(user).empty())
        return std::nullopt;
    // ICU's matcher may also select a related language, such as Danish for Norwegian. Users get only languages that
    // they have asked for, so the matcher gets only the variants of the user's language.
    UErrorCode status = U_ZERO_ERROR;
    icu::LocaleMatcher::Builder builder;
    builder.setNoDefaultLocale();
    std::vector<std::size_t> candidates;
    for (std::size_t i = 0; i < supported.size(); ++i)
        if (const icu::Locale locale = canonical(supported[i]); languageOf(locale) == languageOf(user)) {
            builder.addSupportedLocale(locale);
            candidates.push_back(i);
        }
    if (candidates.empty())
        return std::nullopt;
    const icu::LocaleMatcher matcher = builder.build(status);
    const icu::LocaleMatcher::Result result = matcher.getBestMatchResult(user, status);
    if (!succeeded(status) || result.getSupportedIndex() < 0)
        return std::nullopt;
    return candidates[static_cast<std::size_t>(result.getSupportedIndex())];
}

} // namespace Intl
