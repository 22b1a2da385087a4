// The current language and locale, and the lists of languages.
#include "Lumora/Localization.h"

#include "Lumora/LumoraResources.h"
#include "Lumora/internal/Language.h"
#include "Runtime/Attempt.h"
#include "Runtime/OnceSlot.h"
#include <algorithm>
#include <array>
#include <unordered_set>

namespace Lumora {

using Corvane::LocalizationCode;

namespace {

constexpr std::array<LocalizationCode, 3> asianLocalizationCodes = {LocalizationCode::ko, LocalizationCode::ja,
                                                                    LocalizationCode::zhHans};

// The list that `make` creates at the first use and `slot` keeps; an empty list when memory runs out.
template <class Make>
const std::vector<std::string>& listIn(Runtime::OnceSlot<std::vector<std::string>>& slot, Make make) noexcept {
    static constinit Runtime::OnceSlot<std::vector<std::string>> empty; // a slot, because it is never destroyed
    const std::vector<std::string>* list = Runtime::attempt([&] { return &slot.get(make); });
    return list != nullptr ? *list : empty.get([] { return std::vector<std::string>(); });
}

} // namespace

LocalizationCode detail::currentCode() {
    const std::string* const first = LumoraResources::bundle().preferredLocalization();
    return pickLocalizationCode({first, first != nullptr ? 1U : 0U}, LocalizationCode::allCases());
}

Foundation::Locale detail::currentLocale() {
    const std::string language = currentCode().shortId();
    Foundation::Locale current = Foundation::Locale::current();
    return current.identifier().starts_with(language) ? std::move(current) : Foundation::Locale(language);
}

LocalizationCode Localization::currentLanguageCode() {
    return Runtime::attempt(detail::currentCode, LocalizationCode(LocalizationCode::en));
}

std::string Localization::currentLanguage() {
    return currentLanguageCode().shortId();
}

Foundation::Locale Localization::currentLocale() {
    return Runtime::attempt(detail::currentLocale, Foundation::Locale("en"));
}

bool Localization::isAsianLocale() {
    return std::ranges::find(asianLocalizationCodes, currentLanguageCode()) != asianLocalizationCodes.end();
}

bool Localization::isCurrentLocalizationRu() {
    return currentLanguageCode() == LocalizationCode::ru;
}

bool Localization::isLegacyCurrentLocalizationRu() {
    return isCurrentLocalizationRu();
}

const std::vector<std::string>& Localization::allSupportedLocalizations() {
    static constinit Runtime::OnceSlot<std::vector<std::string>> slot;
    return listIn(slot, [] {
        std::vector<std::string> ids;
        for (const LocalizationCode code : LocalizationCode::allCases())
            ids.push_back(code.id());
        return ids;
    });
}

const std::vector<std::string>& Localization::allSupportedHandbookLocalizations() {
    static constinit Runtime::OnceSlot<std::vector<std::string>> slot;
    return listIn(slot, [] {
        std::unordered_set<std::string> languages;
        for (const LocalizationCode code : LocalizationCode::allCases())
            languages.insert(code.shortId());
        return std::vector<std::string>(languages.begin(), languages.end());
    });
}

} // namespace Lumora
