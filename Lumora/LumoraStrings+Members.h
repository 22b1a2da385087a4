// Lumora/LumoraStrings+Members.h
// The members of LumoraStrings::Localizable that are made by hand: plural forms, quantity phrases, signed numbers.
// Text: UTF-8. Threads: any; the words are texts of the main table, kept from their first read on.
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

// The form that goes with `count`: by its last digit, the last form for counts that end in 11 to 19, and for every
// negative one. The rule is the same in all languages; the words are the language's.
[[nodiscard]] LUMORA_EXPORT std::string getSuffix(std::int64_t count, const PluralForms& forms);

// The count in plain decimal, a space and the noun: "3 days".
[[nodiscard]] LUMORA_EXPORT std::string locYears(std::int64_t count);
[[nodiscard]] LUMORA_EXPORT std::string locDays(std::int64_t count);
[[nodiscard]] LUMORA_EXPORT std::string locHours(std::int64_t count);
[[nodiscard]] LUMORA_EXPORT std::string locWeeks(std::int64_t count);

// Localization::legacyTrNumber() of a whole number.
[[nodiscard]] LUMORA_EXPORT std::string locNumber(std::int64_t number, bool needSign);

} // namespace Lumora::LumoraStrings::Localizable
