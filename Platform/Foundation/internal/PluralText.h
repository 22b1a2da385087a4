// Foundation/internal/PluralText.h
// Turns a plural format into the text that goes with its numbers; internal.
// Text: UTF-8. Threads: any; no state. Errors: std::bad_alloc only.
#pragma once

#include "Foundation/FormatArgument.h"
#include "StringTables/internal/PluralTable.h"
#include <cstddef>
#include <span>
#include <string>
#include <string_view>

namespace Foundation::detail {

// The format with every variable replaced by the form that goes with its argument in `language` (a BCP 47 tag): a
// format without variables whose placeholders all have positions. A variable without any form is left out, and so is
// what goes beyond mostVariables replacements (variables may name each other) or longestPlural bytes.
[[nodiscard]] std::string chosenFormat(const StringTables::PluralFormat& plural, std::string_view language,
                                       std::span<const FormatArgument> arguments);
inline constexpr std::size_t mostVariables = 256;
inline constexpr std::size_t longestPlural = std::size_t{1} << 20;

// The same with the form `other` of every variable: what the key reads as where there are no numbers.
[[nodiscard]] std::string generalFormat(const StringTables::PluralFormat& plural);

} // namespace Foundation::detail
