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

// The numbers of changes.
struct Imported {
    std::size_t texts = 0; // changed
    std::size_t files = 0;
};

// Reads an XLIFF or PO file; the format is detected from the content.
[[nodiscard]] Runtime::Result<std::vector<Translations>> readTranslations(const std::string& file,
                                                                          SourceBundle::Diagnostics& faults);

// Writes the translations into the files of `source`, either all files or none. Only texts that differ are changed.
// Invalid translations are errors in `faults`: an unknown text, a text given twice, a development text that has changed
// since the export, other placeholders than those of the development text, an unknown language. The result reports
// files that cannot be read or written.
[[nodiscard]] Runtime::Result<Imported> importTranslations(const SourceBundle::Source& source,
                                                           std::span<const Translations> all,
                                                           const ImportOptions& options,
                                                           SourceBundle::Diagnostics& faults);

} // namespace Exchange
