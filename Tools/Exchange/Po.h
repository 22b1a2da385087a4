// Exchange/Po.h
// Reads and writes PO files, the format of gettext and most translation tools.
// Text: UTF-8. Threads: any; no state.
#pragma once

#include "Exchange/Unit.h"
#include "SourceBundle/Diagnostics.h"
#include <span>

namespace Exchange {

// Sets the fuzzy flag of a key's units. An entry is fuzzy if its translation is unfinished, or if gettext would reject
// it because it begins or ends with a line break and its source does not.
void markFuzzy(std::span<Unit> units, std::string_view language);

// A plural is one entry with the forms for integers, and one more entry for each other form. Entries with a NUL
// character, which PO cannot represent, are left out with a warning.
[[nodiscard]] std::string writePo(const Translations& translations, SourceBundle::Diagnostics& diagnostics);

// Reads a UTF-8 file whose header names its language. Entries with an invalid id or another plural rule than the
// language's are errors in `faults`. Errors: not a PO file, another encoding, no language.
[[nodiscard]] Runtime::Result<Translations> readPo(const std::string& bytes, const std::string& file,
                                                   SourceBundle::Diagnostics& faults);

} // namespace Exchange
