// Publishes the localization services to callers that use messages.
#include "Lumora/Localization.h"
#include "Runtime/Class.h"

namespace Lumora {

namespace {

// Callers see the names in the order of these lists.
constexpr Runtime::Method properties[] = {
    Runtime::method<&Localization::currentLocale>("currentLocale"),
    Runtime::method<&Localization::isAsianLocale>("isAsianLocale"),
    Runtime::method<&Localization::currentLanguage>("currentLanguage"),
    Runtime::method<&Localization::isCurrentLocalizationRu>("isCurrentLocalizationRu"),
    Runtime::method<&Localization::allSupportedLocalizations>("allSupportedLocalizations"),
    Runtime::method<&Localization::allSupportedHandbookLocalizations>("allSupportedHandbookLocalizations"),
};
constexpr Runtime::Method methods[] = {
    Runtime::method<&Localization::legacyTr>("legacyTr:"),
    Runtime::method<&Localization::legacyTrNumber>("legacyTrNumber:needSign:"),
    Runtime::method<&Localization::legacyTrPercent>("legacyTrPercent:showPlus:"),
    Runtime::method<&Localization::legacyTrYear>("legacyTrYearWithValue:"),
    Runtime::method<&Localization::legacyTrAge>("legacyTrAge:"),
};
constexpr Runtime::Class localization("Lumora.Localization", properties, methods);
LUMORA_PUBLISH_CLASS(localization);

} // namespace

} // namespace Lumora
