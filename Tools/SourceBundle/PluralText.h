// SourceBundle/PluralText.h
// Builds plural formats from string catalogs and shows them as text; internal.
// Text: UTF-8. Threads: any; no state.
#pragma once

#include "StringTables/internal/PluralTable.h"
#include <cstddef>
#include <string>
#include <vector>

namespace SourceBundle {

// The format with every variable replaced by its form `other`, or its last form: for display, not for formatting. Cut
// after at most maxOtherText bytes.
[[nodiscard]] std::string otherText(const StringTables::PluralFormat& plural);
inline constexpr std::size_t maxOtherText = 4096;

using PluralForms = decltype(StringTables::PluralVariable::forms);

// The plural format of a text whose forms depend on its first number: the forms of "%@ has %lld files" depend on the
// second argument.
[[nodiscard]] StringTables::PluralFormat pluralOfForms(PluralForms forms);

// A variable of a format, the argument that it takes (0: that of its place in the format) and its forms, in which
// "%arg" is that argument.
struct Substitution {
    StringTables::PluralVariable variable;
    std::size_t argument = 0;
};
[[nodiscard]] StringTables::PluralFormat pluralOfSubstitutions(const std::string& format,
                                                               std::vector<Substitution> substitutions);

} // namespace SourceBundle
