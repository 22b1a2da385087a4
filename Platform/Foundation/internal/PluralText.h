// Foundation/internal/PluralText.h
// Selects the forms of a plural format for its numbers; internal.
// Text: UTF-8. Threads: any; no state. Errors: std::bad_alloc only.
#pragma once

#include "Foundation/FormatArgument.h"
#include "StringTables/internal/PluralTable.h"
#include <cstddef>
#include <span>
#include <string>
#include <string_view>

namespace Foundation::detail {

// The format with every variable replaced by the form for its argument in `language` (a BCP 47 tag), or by the form
// `other` if the argument is missing. The result has no variables, and all its placeholders have positions. Variables
// without any form are left out, and so is a variable inside one of its own forms. As forms may name other variables
// many times, there are limits: a variable after maxReplacedVariables others is left out with the rest of the text that
// names it, and the result ends after the placeholder or literal text with which it reaches maxPluralBytes.
[[nodiscard]] std::string chosenFormat(const StringTables::PluralFormat& plural, std::string_view language,
                                       std::span<const FormatArgument> arguments);
inline constexpr std::size_t maxReplacedVariables = 256;
inline constexpr std::size_t maxPluralBytes = std::size_t{1} << 20;

// The same with the form `other` of every variable: the text for use without numbers.
[[nodiscard]] std::string generalFormat(const StringTables::PluralFormat& plural);

} // namespace Foundation::detail
