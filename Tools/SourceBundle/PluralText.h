// SourceBundle/PluralText.h
// Plural formats made and read as people write them; internal.
// Text: UTF-8. Threads: any; no state.
#pragma once

#include "StringTables/internal/PluralTable.h"
#include <cstddef>
#include <string>
#include <vector>

namespace SourceBundle {

// The format with every variable replaced by its form `other`, or the last one there is: for people, not for
// formatting. Longer ones are cut at maxOtherText bytes.
[[nodiscard]] std::string otherText(const StringTables::PluralFormat& plural);
inline constexpr std::size_t maxOtherText = 4096;

using PluralForms = decltype(StringTables::PluralVariable::forms);

// The format of a text that has forms for the first number among its placeholders: "%@ has %lld files" takes the form
// of its second argument.
[[nodiscard]] StringTables::PluralFormat pluralOfForms(PluralForms forms);

// A variable of a format, the argument that it takes (0: that of its place in the format) and its forms, in which "%arg" is that argument.
struct Substitution {
    StringTables::PluralVariable variable;
    std::size_t argument = 0;
};
[[nodiscard]] StringTables::PluralFormat pluralOfSubstitutions(const std::string& format,
                                                               std::vector<Substitution> substitutions);

} // namespace SourceBundle
