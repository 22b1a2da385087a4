// Intl/internal/YearForms.h
// How a locale counts years.
// Text: UTF-8. Threads: plain values.
#pragma once

#include "Intl/internal/PluralCategory.h"
#include <array>
#include <string>

namespace Intl {

// By PluralCategory: "{0} year", where "{0}" stands for the number; a form such as "a year" may lack it. Empty for a
// category that the language does not have; all are empty when the language data is missing.
struct YearForms {
    std::array<std::string, pluralCategoryCount> forms;

    friend bool operator==(const YearForms&, const YearForms&) = default;
};

} // namespace Intl
