// Exchange/Placeholders.h
// Whether a translation takes the arguments that the development text takes.
// Text: UTF-8. Threads: any; no state.
#pragma once

#include "Exchange/Unit.h"
#include <optional>
#include <span>
#include <string>

namespace Exchange {

// What is wrong with the placeholders of `translation`, a text for the unit `expected`, or no value. They are compared
// by the arguments they take and by the kind of these. A plural form may leave out the number that chooses it, and may
// take what another form of the development text takes. `all`: the units of the key.
[[nodiscard]] std::optional<std::string> placeholderFault(const std::string& translation, const Unit& expected,
                                                          std::span<const Unit> all,
                                                          const SourceBundle::SourceEntry& development);

} // namespace Exchange
