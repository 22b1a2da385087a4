// Publishes the localization services to callers that use messages.
#include "Lumora/Localization.h"
#include "Runtime/Class.h"

namespace Lumora {

namespace {

// Messages cannot pass references and views, so these return and take copies.
std::vector<std::string> allSupportedLocalizations() {
    return Localization::allSupportedLocalizations();
}
std::vector<std::string> allSupportedHandbookLocalizations() {
    return Localization::allSupportedHandbookLocalizations();
}
std::string legacyTr(const std::string& key) {
    return Localization::legacyTr(key);
}

// Callers see them in this order.
constexpr Runtime::Message properties[] = {
    Runtime::message<&Localization::currentLocale>("currentLocale"),
    Runtime::message<&Localization::isAsianLocale>("isAsianLocale"),
    Runtime::message<&Localization::currentLanguage>("currentLanguage"),
    Runtime::message<&Localization::isCurrentLocalizationRu>("isCurrentLocalizationRu"),
    Runtime::message<&allSupportedLocalizations>("allSupportedLocalizations"),
    Runtime::message<&allSupportedHandbookLocalizations>("allSupportedHandbookLocalizations"),
};
constexpr Runtime::Message methods[] = {
    Runtime::message<&legacyTr>("legacyTr:"),
    Runtime::message<&Localization::legacyTrNumber>("legacyTrNumber:needSign:"),
    Runtime::message<&Localization::legacyTrPercent>("legacyTrPercent:showPlus:"),
    Runtime::message<&Localization::legacyTrYear>("legacyTrYearWithValue:"),
    Runtime::message<&Localization::legacyTrAge>("legacyTrAge:"),
};
constexpr Runtime::Class localization("Lumora.Localization", properties, methods);
LUMORA_PUBLISH_CLASS(localization);

} // namespace

} // namespace Lumora
