// Lumora/LumoraStrings+Members.h
// What is added by hand to the generated namespace LumoraStrings::Localizable: plural forms, numbers with a noun,
// signed numbers. The nouns are texts of the table Localizable (key "day_1") and are cached at their first use.
// Text: UTF-8. Threads: any. Errors: none; a text is empty when memory runs out.
#pragma once

#include "Runtime/Export.h"
#include <cstdint>
#include <string>

namespace Lumora::LumoraStrings::Localizable {

// The forms of a noun for 1, for 2 to 4, and for the rest.
struct PluralForms {
    std::string one;
    std::string two;
    std::string many;
};

// The form for `count`, selected by its last digit; `many` for counts that end in 11 to 19 and for negative counts. The
// rule is the same in all languages.
[[nodiscard]] LUMORA_EXPORT std::string getSuffix(std::int64_t count, const PluralForms& forms);

// The count in plain decimal, a space and the noun: "3 days".
[[nodiscard]] LUMORA_EXPORT std::string locYears(std::int64_t count);
[[nodiscard]] LUMORA_EXPORT std::string locDays(std::int64_t count);
[[nodiscard]] LUMORA_EXPORT std::string locHours(std::int64_t count);
[[nodiscard]] LUMORA_EXPORT std::string locWeeks(std::int64_t count);

// Localization::legacyTrNumber() for an integer.
[[nodiscard]] LUMORA_EXPORT std::string locNumber(std::int64_t number, bool needSign);

} // namespace Lumora::LumoraStrings::Localizable
