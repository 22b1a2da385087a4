// Lumora/Localization.h
// The localization services: the language in force, texts of one chosen language, signed numbers, percentages and ages.
// Text: UTF-8. Threads: every member from any thread; each call sees the host's languages and locale of its moment.
// Ownership: results belong to the caller. Nothing here fails, but for the one number text that says so.
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

// Published to messages as "Lumora.Localization".
class LUMORA_EXPORT Localization {
public:
    // Everything is static; an object serves no purpose.
    Localization() = default;

    // The application language in force: the bundle's first preferred localization, English when that is none of the
    // application's languages. Later preferences are never looked at.
    [[nodiscard]] static Corvane::LocalizationCode currentLanguageCode();
    // The language alone: "es" for "es-419".
    [[nodiscard]] static std::string currentLanguage();
    // The user's locale if its identifier begins with the language in force, so that regional settings survive;
    // otherwise the language's own locale. The test is on the text alone: "pt" keeps "pt_PT" under Brazilian texts too.
    [[nodiscard]] static Foundation::Locale currentLocale();
    // Korean, Japanese or Chinese.
    [[nodiscard]] static bool isAsianLocale();
    [[nodiscard]] static bool isCurrentLocalizationRu();
    [[nodiscard]] static bool isLegacyCurrentLocalizationRu();
    // The ids of all languages, in the order of LocalizationCode::allCases().
    [[nodiscard]] static const std::vector<std::string>& allSupportedLocalizations();
    // The languages alone, each once, in no particular order.
    [[nodiscard]] static const std::vector<std::string>& allSupportedHandbookLocalizations();

    // The text of `key` in the main table of the language `code` ("ru", "es-419"; "en" and "Base" are the development
    // texts), with its placeholders as they stand. Empty for an empty key and for whatever is missing. Reads the
    // table's file at every call.
    [[nodiscard]] static std::string localizationFileTranslation(std::string_view code, std::string_view key);
    // The text of `key` in the main table of the language in force, with its placeholders as they stand; `key` itself
    // when it has none.
    [[nodiscard]] static std::string legacyTr(std::string_view key);

    // A decimal number in the user's own locale; with `needSign` every number that is not negative, zero included,
    // begins with the locale's plus sign. Infinities and not-a-number are written as the locale writes them, whole
    // numbers of the full 64-bit range exactly. With `needSign` a formatter that gives no text stops the process.
    [[nodiscard]] static std::string legacyTrNumber(const Foundation::NSNumber& number, bool needSign);
    // A fraction as a percentage: 0.25 is "25%". Rounded in single precision with halves away from zero and written
    // with ASCII digits, in full however large; not-a-number is "NaN%", the infinities (what single precision cannot
    // hold included) are "∞%" and "-∞%". In Arabic and Turkish as the user's own locale writes it. With `showPlus` a
    // value above zero begins with "+".
    [[nodiscard]] static std::string legacyTrPercent(double value, bool showPlus);
    // A number of years in words, in currentLocale(): "25 лет". Empty when the platform has no words for it.
    [[nodiscard]] static std::string legacyTrYear(std::int64_t value);
    // The same, or in the languages whose tables hold the words, the table's phrase.
    [[nodiscard]] static std::string legacyTrAge(std::int64_t age);
};

} // namespace Lumora
