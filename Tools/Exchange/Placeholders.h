// Exchange/Placeholders.h
// Checks that a translation takes the same arguments as the development text.
// Text: UTF-8. Threads: any; no state.
#pragma once

#include "Exchange/Unit.h"
#include <optional>
#include <span>
#include <string>

namespace Exchange {

// What is wrong with the placeholders of `translation`, a text for the unit `expected`, as the rest of a sentence
// ("lacks the variable days"); no value if nothing is. Compares the arguments and their kinds. A plural form may omit
// the number that selects it and may take the arguments of any form of the development text. `all` are the source's
// units of the same part of the key, including `expected`; `development` is the key's development entry.
[[nodiscard]] std::optional<std::string> placeholderFault(const std::string& translation, const Unit& expected,
                                                          std::span<const Unit> all,
                                                          const SourceBundle::SourceEntry& development);

} // namespace Exchange
