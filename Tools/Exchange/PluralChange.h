// Exchange/PluralChange.h
// Applies changes to a plural format.
#pragma once

#include "Exchange/TableDocument.h"
#include "StringTables/internal/PluralTable.h"
#include <string>
#include <string_view>

namespace Exchange {

// How UnitId::part begins for the format and for a variable of a .stringsdict entry.
inline constexpr std::string_view formatPart = "format", variablesPart = "variables";

// Writes the targets of the units, all of one .stringsdict entry, into `plural`. A unit with a category sets that form
// of its variable, a unit without one sets the format. A new variable has the value type that it has in `development`,
// or "ld".
void applyTo(StringTables::PluralFormat& plural, std::span<const Unit* const> units,
             const SourceBundle::SourceEntry& development);
// A new plural with all texts of the change. Without a unit for the format, it has the format of the development text,
// or an empty one if the development text is not a plural.
[[nodiscard]] StringTables::PluralFormat newPlural(const Change& change);

} // namespace Exchange
