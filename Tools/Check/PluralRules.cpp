// The rule missing-plural-form.
#include "Check/TextRules.h"

#include "Generator/CodeText.h"
#include "Intl/internal/PluralRules.h"
#include "StringTables/internal/PluralTable.h"
#include <string>

namespace Check {

using Intl::PluralCategory;
using StringTables::PluralVariable;

namespace {

constexpr std::uint8_t bitOf(PluralCategory category) noexcept {
    return static_cast<std::uint8_t>(1U << Intl::indexOf(category));
}

// Whole numbers up to 200 and tenths up to 3.0 have all plural categories of every language, except those for whole
// millions only, which are not required (TextRules.h).
constexpr int maxWhole = 200, maxTenths = 30;

std::uint8_t categoryBit(std::string_view language, const std::string& number) {
    return bitOf(Intl::pluralCategory(language, Intl::pluralOperands(number)));
}

bool isFloating(const PluralVariable& variable) {
    return variable.valueType.find_first_of("fFeEgGaA") != std::string::npos;
}

// "few, many"
std::string namesOf(std::uint8_t forms) {
    std::string names;
    for (std::size_t i = 0; i < Intl::pluralCategoryCount; ++i)
        if ((forms >> i & 1) != 0)
            names.append(names.empty() ? "" : ", ").append(Intl::pluralCategoryNames[i]);
    return names;
}

std::uint8_t formsOf(const PluralVariable& variable) {
    std::uint8_t forms = 0;
    for (std::size_t i = 0; i < Intl::pluralCategoryCount; ++i)
        if (variable.forms[i])
            forms |= static_cast<std::uint8_t>(1U << i);
    return forms;
}

} // namespace

NeededForms neededForms(std::string_view language) {
    NeededForms needed{bitOf(PluralCategory::other), bitOf(PluralCategory::other)};
    for (int i = 0; i <= maxWhole; ++i)
        needed.ofWhole |= categoryBit(language, std::to_string(i));
    for (int i = 0; i <= maxTenths; ++i)
        needed.ofFloating |= categoryBit(language, std::to_string(i / 10) + '.' + std::to_string(i % 10));
    needed.ofFloating |= needed.ofWhole; // "%g" prints integers without a decimal point
    return needed;
}

bool checkPluralForms(const Text& text, NeededForms needed, Report& report) {
    if (text.entry.plural == nullptr)
        return true;
    bool hasForms = true;
    const auto& variables = text.entry.plural->variables;
    for (const PluralVariable& variable : variables) {
        const std::uint8_t forms = formsOf(variable);
        const std::uint8_t required = isFloating(variable) ? needed.ofFloating : needed.ofWhole;
        hasForms &= forms != 0;
        if ((required & ~forms) == 0)
            continue;
        const std::string which = variables.size() > 1 ? ", variable " + Generator::quote(variable.name) + "," : "";
        text.report(report, Rule::missingPluralForm,
                    Generator::quote(text.entry.key) + which + " lacks the plural form " +
                        namesOf(static_cast<std::uint8_t>(required & ~forms)) + "; " + std::string(text.languages.own) +
                        " needs " + namesOf(required));
    }
    return hasForms;
}

} // namespace Check
