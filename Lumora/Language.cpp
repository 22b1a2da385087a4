// The language in force and what follows from it.
#include "Lumora/Localization.h"

#include "Lumora/LumoraResources.h"
#include "Runtime/OnceSlot.h"
#include <algorithm>
#include <array>
#include <unordered_set>

namespace Lumora {

using Corvane::LocalizationCode;

namespace {

constexpr std::array<LocalizationCode, 3> asianLocalizationCodes = {LocalizationCode::ko, LocalizationCode::ja,
                                                                    LocalizationCode::zhHans};

} // namespace

LocalizationCode detail::pickLocalizationCode(std::span<const std::string> preferred,
                                              std::span<const LocalizationCode> supported) noexcept {
    if (preferred.empty())
        return LocalizationCode::en;
    const auto code = LocalizationCode::fromRawValue(preferred.front());
    const bool isSupported = code && std::ranges::find(supported, *code) != supported.end();
    return isSupported ? *code : LocalizationCode::en;
}

LocalizationCode Localization::currentLanguageCode() {
    return detail::pickLocalizationCode(LumoraResources::bundle().preferredLocalizations(),
                                        LocalizationCode::allCases());
}

std::string Localization::currentLanguage() {
    return currentLanguageCode().shortId();
}

Foundation::Locale Localization::currentLocale() {
    const std::string language = currentLanguage();
    Foundation::Locale current = Foundation::Locale::current();
    return current.identifier().starts_with(language) ? current : Foundation::Locale(language);
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
    static constinit Runtime::OnceSlot<std::vector<std::string>> list;
    return list.get([] {
        std::vector<std::string> ids;
        for (const LocalizationCode code : LocalizationCode::allCases())
            ids.push_back(code.id());
        return ids;
    });
}

const std::vector<std::string>& Localization::allSupportedHandbookLocalizations() {
    static constinit Runtime::OnceSlot<std::vector<std::string>> list;
    return list.get([] {
        std::unordered_set<std::string> languages;
        for (const LocalizationCode code : LocalizationCode::allCases())
            languages.insert(code.shortId());
        return std::vector<std::string>(languages.begin(), languages.end());
    });
}

} // namespace Lumora
