// Intl/internal/YearForms.h
// How a locale writes a number of years.
// Text: UTF-8. Threads: plain values.
#pragma once

#include "Intl/internal/PluralCategory.h"
#include <array>
#include <string>

namespace Intl {

// By PluralCategory: "{0} year", where "{0}" stands for the number; a form such as "a year" may lack it. Empty for a
// category that no integer has in the language; all are empty when the language data is missing.
struct YearForms {
    std::array<std::string, pluralCategoryCount> forms;
};

} // namespace Intl
