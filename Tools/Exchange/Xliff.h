// Exchange/Xliff.h
// Units as XLIFF 1.2.
// Text: UTF-8. Threads: any; no state.
#pragma once

#include "Exchange/Unit.h"
#include "SourceBundle/Diagnostics.h"
#include <string>
#include <vector>

namespace Exchange {

// One <file> for each table, a <trans-unit> for each unit, a <group> around the forms of a plural. A character that XML
// cannot hold is <ph ctype="x-character" equiv-text="HEX"/>.
[[nodiscard]] std::string writeXliff(const Handout& handout, std::string_view version);

// Reads a document in any encoding that XML names, its units put together by the languages of their <file>. A unit
// without the id of a text is an error in `faults`. Errors: not XLIFF 1.2, an unknown inline element, a <file> without
// its languages.
[[nodiscard]] Runtime::Result<std::vector<Handout>> readXliff(std::string bytes, const std::string& file,
                                                              SourceBundle::Diagnostics& faults);

} // namespace Exchange
