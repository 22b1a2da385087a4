// SourceBundle/PluralText.h
// Builds plural formats from string catalogs and shows them as text.
// Text: UTF-8. Threads: any; no state.
#pragma once

#include "StringTables/internal/PluralTable.h"
#include <cstddef>
#include <string>
#include <string_view>
#include <vector>

namespace SourceBundle {

// The format with every variable replaced by its StringTables::otherForm(): for display, not for formatting. It has at
// most maxOtherText bytes. A variable nested too deeply, or after too many others, is left out with the rest of the
// form that contains it, because variables may refer to each other without end.
[[nodiscard]] std::string otherText(const StringTables::PluralFormat& plural);
inline constexpr std::size_t maxOtherText = 4096;

using PluralForms = decltype(StringTables::PluralVariable::forms);

// The plural format of a text with these forms. The first placeholder for a number, in the form `other` or else in
// another, tells which argument selects the form: the second one for "%@ has %lld files". Without such a placeholder it
// is the first argument.
[[nodiscard]] StringTables::PluralFormat pluralOfForms(PluralForms forms);

// In the plural forms of a string catalog: the number that selects the form.
inline constexpr std::string_view selectorMark = "%arg";
// Replaces every `mark`, which begins with "%". Returns whether there was one. In "%%arg" there is none.
bool replaceMarks(std::string& text, std::string_view mark, std::string_view replacement);

// A variable of a string catalog.
struct Substitution {
    StringTables::PluralVariable variable;
    std::size_t argument = 0; // the position of the number; 0: that of the variable's placeholder in the format
};
// The plural format of a text whose variables ("%#@files@") are substitutions.
[[nodiscard]] StringTables::PluralFormat pluralOfSubstitutions(const std::string& format,
                                                               std::vector<Substitution> substitutions);

} // namespace SourceBundle
