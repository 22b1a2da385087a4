// Looks up texts of the main table, Localizable, by key.
#include "Lumora/Localization.h"

#include "Foundation/NSDictionary.h"
#include "Lumora/LumoraResources.h"
#include "Runtime/Attempt.h"

namespace Lumora {

std::string Localization::localizationFileTranslation(std::string_view code, std::string_view key) {
    return Runtime::attempt([&]() -> std::string {
        if (key.empty())
            return {};
        const std::string_view localization = code == "en" ? "Base" : code;
        const auto path = LumoraResources::bundle().pathForResource("Localizable", "strings", "", localization);
        if (!path)
            return {};
        const auto table = Foundation::NSDictionary::dictionaryWithContentsOfFile(*path);
        return table ? std::string(table->stringForKey(key).value_or("")) : std::string();
    });
}

std::string Localization::legacyTr(std::string_view key) {
    return Runtime::attempt(
        [&]() -> std::string { return LumoraResources::bundle().localizedStringForKey(key, nullptr, "Localizable"); });
}

} // namespace Lumora
