// Lumora/Localization.h
// The localization services: the current language, texts of a chosen language, signed numbers, percentages and ages.
// Text: UTF-8. Threads: any; each call uses the host's current languages and locale. Ownership: the two lists live
// until the process ends; other results are values. Errors: none. When memory or descriptors run out, texts and lists
// are empty and the language is English.
#pragma once

#include "Foundation/Locale.h"
#include "Foundation/NSNumber.h"
#include "Lumora/LocalizationCode.h"
#include "Runtime/Export.h"
#include <cstdint>
#include <string>
#include <string_view>
#include <vector>

namespace Lumora {

// All members are static. The functions legacyTr... are current: the fitness application calls them by these names. The
// class "Lumora.Localization" publishes most members to messages (Runtime/Class.h).
class LUMORA_EXPORT Localization {
public:
    // The current language: the first of the bundle's preferred localizations (NSBundle), or English when that is not
    // one of LocalizationCode. Later ones are ignored.
    [[nodiscard]] static Corvane::LocalizationCode currentLanguageCode();
    // The current language without region or script: "es" for "es-419".
    [[nodiscard]] static std::string currentLanguage();
    // The user's locale if its identifier begins with the current language, so that regional settings are kept;
    // otherwise the locale of the language. This is a plain prefix comparison: with Brazilian texts, "pt" also keeps
    // "pt_PT".
    [[nodiscard]] static Foundation::Locale currentLocale();
    // Whether the current language is Korean, Japanese or Chinese.
    [[nodiscard]] static bool isAsianLocale();
    [[nodiscard]] static bool isCurrentLocalizationRu();
    [[nodiscard]] static bool isLegacyCurrentLocalizationRu(); // the same, for older callers
    // The ids of all languages, in the order of LocalizationCode::allCases().
    [[nodiscard]] static const std::vector<std::string>& allSupportedLocalizations();
    // The languages of the application's handbook: those of the texts without region or script, each once, in no
    // particular order.
    [[nodiscard]] static const std::vector<std::string>& allSupportedHandbookLocalizations();

    // The text of `key` in the main table, Localizable, of the language `code` ("ru", "es-419"; "en" and "Base" are the
    // development texts), without formatting. Empty when the key is empty, or when language, table or text are
    // missing. Reads the table's file at every call.
    [[nodiscard]] static std::string localizationFileTranslation(std::string_view code, std::string_view key);
    // The text of `key` in the main table of the current language, without formatting; `key` itself when it has none.
    [[nodiscard]] static std::string legacyTr(std::string_view key);

    // The number as the user's locale writes it, also infinities and NaN; at most three fraction digits, integers
    // exactly. With `needSign`, numbers without a minus sign begin with the locale's plus sign. (If
    // NSNumberFormatter had no text for a signed number, the process would stop; it has one for every number.)
    [[nodiscard]] static std::string legacyTrNumber(const Foundation::NSNumber& number, bool needSign);
    // A fraction as a whole percentage: 0.257 is "26%". Rounded in single precision, halves away from zero, and written
    // in ASCII digits without grouping or exponent. NaN is "NaN%"; infinities, and values too large for single
    // precision, are "∞%" and "-∞%". If the current language is Arabic or Turkish ("%25"), the user's locale
    // formats the percentage instead. With `showPlus`, positive values begin with "+".
    [[nodiscard]] static std::string legacyTrPercent(double value, bool showPlus);
    // A number of years as currentLocale() spells it: "25 лет". Empty when the plug-in lumora-intl.so is needed but
    // missing.
    [[nodiscard]] static std::string legacyTrYear(std::int64_t value);
    // An age in years: in seven languages, such as English, locYears() (LumoraStrings+Members.h), with a noun from the
    // main table; in the others legacyTrYear().
    [[nodiscard]] static std::string legacyTrAge(std::int64_t age);
};

} // namespace Lumora
