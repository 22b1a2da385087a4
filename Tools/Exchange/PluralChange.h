// Exchange/PluralChange.h
// A change applied to a plural format; internal.
#pragma once

#include "Exchange/TableDocument.h"
#include "StringTables/internal/PluralTable.h"
#include <string>
#include <string_view>

namespace Exchange {

// The parts of a key in a file of plurals.
inline constexpr std::string_view formatPart = "format", variablesPart = "variables";

// Puts the units' texts into `plural`. A variable that is not there yet takes its number's type from `development`.
void applyTo(StringTables::PluralFormat& plural, std::span<const Unit* const> units,
             const SourceBundle::SourceEntry& development);
// A new one of all texts of the change; its format, where no unit gives one, is that of the development text.
[[nodiscard]] StringTables::PluralFormat newPlural(const Change& change);

} // namespace Exchange
