// Exchange/Po.h
// Reads and writes PO files, the format of gettext and most translation tools.
// Text: UTF-8. Threads: any; no state.
#pragma once

#include "Exchange/Unit.h"
#include "SourceBundle/Diagnostics.h"
#include <span>

namespace Exchange {

// Sets the fuzzy flag of the units. A PO entry is fuzzy if its translation is new or to be reviewed, or if gettext
// would reject it because some of its texts begin (or end) with a line break and others do not. Precondition: the units
// of one plural are adjacent.
void markFuzzy(std::span<Unit> units, std::string_view language);

// A plural is one entry with the forms for integers, and one more entry for each further form. Entries with a NUL
// character, which PO cannot represent, are left out with a warning.
[[nodiscard]] std::string writePo(const Translations& translations, SourceBundle::Diagnostics& diagnostics);

// Reads a UTF-8 file whose header names its language. `file` is its name, for messages. Errors in `faults`: entries
// with an invalid id, plural forms that the language does not have, and all plurals if the header does not have the
// plural rule of the language. Errors of the result: not a PO file, another encoding, no language.
[[nodiscard]] Runtime::Result<Translations> readPo(const std::string& bytes, const std::string& file,
                                                   SourceBundle::Diagnostics& faults);

} // namespace Exchange
