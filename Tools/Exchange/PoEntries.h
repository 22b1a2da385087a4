// Exchange/PoEntries.h
// Groups units into entries of a PO file; internal.
#pragma once

#include "Exchange/Unit.h"
#include <span>
#include <vector>

namespace Exchange {

// One text, or the plural forms for integers in order.
struct PoEntry {
    std::vector<std::size_t> units{}; // indices
    bool isPlural = false;
    std::size_t singular = 0, plural = 0; // indices of the units whose sources are msgid and msgid_plural
};

[[nodiscard]] std::vector<PoEntry> poEntries(std::span<const Unit> units, std::string_view language);

} // namespace Exchange
