// Exchange/Xliff.h
// Reads and writes XLIFF 1.2.
// Text: UTF-8. Threads: any; no state.
#pragma once

#include "Exchange/Unit.h"
#include "SourceBundle/Diagnostics.h"
#include <string>
#include <vector>

namespace Exchange {

// Writes a <file> for each table, a <trans-unit> for each unit, and a <group> around the forms of a plural. A character
// of a text that XML cannot represent is written as <ph ctype="x-character" equiv-text="HEX"/>. `version`: of this
// program.
[[nodiscard]] std::string writeXliff(const Translations& translations, std::string_view version);

// Reads a document in any encoding that XML declares; `file` is its name, for messages. Units are grouped by the
// languages of their <file>. Units with an invalid id or without a source are errors in `faults`. Errors of the result:
// not XLIFF 1.2 or an older 1.x, an inline element other than <g>, <mrk> and that <ph>, a <file> without its languages.
[[nodiscard]] Runtime::Result<std::vector<Translations>> readXliff(std::string bytes, const std::string& file,
                                                                   SourceBundle::Diagnostics& faults);

} // namespace Exchange
