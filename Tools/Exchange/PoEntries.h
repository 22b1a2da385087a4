// Exchange/PoEntries.h
// Groups units into entries of a PO file.
#pragma once

#include "Exchange/Unit.h"
#include <span>
#include <vector>

namespace Exchange {

// One text, the forms of a plural for integers in order, or a single form for fractions only. The numbers are indices
// of units.
struct PoEntry {
    std::vector<std::size_t> units{};
    bool isPlural = false;
    std::size_t singular = 0, plural = 0; // the units whose sources are msgid and msgid_plural
};

// The entries for all units, in their order. Units of one plural must be adjacent.
[[nodiscard]] std::vector<PoEntry> poEntries(std::span<const Unit> units, std::string_view language);

} // namespace Exchange
