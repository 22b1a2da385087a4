// Exchange/PoEntries.h
// Which units make one entry of a PO file; internal.
#pragma once

#include "Exchange/Unit.h"
#include <span>
#include <vector>

namespace Exchange {

// One text, or the forms of a plural that whole numbers have, in their order.
struct PoEntry {
    std::vector<std::size_t> units{}; // their numbers
    bool isPlural = false;
    std::size_t singular = 0, plural = 0; // of the units whose sources are msgid and msgid_plural
};

[[nodiscard]] std::vector<PoEntry> poEntries(std::span<const Unit> units, std::string_view language);

} // namespace Exchange
