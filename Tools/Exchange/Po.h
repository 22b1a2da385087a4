// Exchange/Po.h
// Units as PO files, the format of gettext and of most translators' programs.
// Text: UTF-8. Threads: any; no state.
#pragma once

#include "Exchange/Unit.h"
#include "SourceBundle/Diagnostics.h"
#include <span>

namespace Exchange {

// Sets the mark of each of a key's units: its entry in a PO file has a translation that is not finished, or one that
// gettext's checks would refuse otherwise, since it begins or ends with a line break where its source does not.
void markFuzzy(std::span<Unit> units, std::string_view language);

// A plural is one entry with the forms that whole numbers have, and one entry more for each other form. What PO cannot
// hold, a NUL character, is left out with a warning.
[[nodiscard]] std::string writePo(const Handout& handout, SourceBundle::Diagnostics& diagnostics);

// Reads a file in UTF-8 whose header names its language. An entry without the id of a text, or whose plural rule is not
// the language's, is an error in `faults`. Errors: not a PO file, another encoding, no language.
[[nodiscard]] Runtime::Result<Handout> readPo(const std::string& bytes, const std::string& file,
                                              SourceBundle::Diagnostics& faults);

} // namespace Exchange
