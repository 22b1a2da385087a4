// Exchange/Import.h
// Writes translations back into the tables of a source.
// Text: UTF-8. Threads: one import of one source at a time.
#pragma once

#include "Exchange/Unit.h"
#include "SourceBundle/Diagnostics.h"
#include <cstddef>
#include <span>

namespace Exchange {

struct ImportOptions {
    bool keepGoing = false; // import valid texts even if others are invalid
};

// How many texts and files were changed.
struct Imported {
    std::size_t texts = 0;
    std::size_t files = 0;
};

// Reads an XLIFF or PO file; the format is detected from the content. Unusable units are errors in `faults`. The result
// reports a file that cannot be read.
[[nodiscard]] Runtime::Result<std::vector<Translations>> readTranslations(const std::string& file,
                                                                          SourceBundle::Diagnostics& faults);

// Writes the translations into the files of `source`, either all files or none. Only texts and states that differ are
// changed.
// Invalid translations are errors in `faults`, such as an unknown text, a text given twice, a development text that has
// changed since the export, other placeholders than those of the development text, or a language that the source cannot
// be translated to. If `faults` has errors, also earlier ones, nothing is written unless options.keepGoing is set. The
// result reports files that cannot be written.
[[nodiscard]] Runtime::Result<Imported> importTranslations(const SourceBundle::Source& source,
                                                           std::span<const Translations> all,
                                                           const ImportOptions& options,
                                                           SourceBundle::Diagnostics& faults);

} // namespace Exchange
