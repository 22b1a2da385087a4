// Intl/internal/YearForms.h
// How a locale counts years.
// Text: UTF-8. Threads: plain values.
#pragma once

#include "Intl/internal/PluralCategory.h"
#include <array>
#include <string>

namespace Intl {

// By PluralCategory: "{0} year", where "{0}" is the place of the number, which a form such as "a year" need not have.
// Empty for a category that the language does not have; all are empty when there are no words.
struct YearForms {
    std::array<std::string, pluralCategoryCount> forms;

    friend bool operator==(const YearForms&, const YearForms&) = default;
};

} // namespace Intl
