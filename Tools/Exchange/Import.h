// Exchange/Import.h
// Translations brought back into the tables of a source.
// Text: UTF-8. Threads: one import of one source at a time.
#pragma once

#include "Exchange/Unit.h"
#include "SourceBundle/Diagnostics.h"
#include <cstddef>
#include <span>

namespace Exchange {

struct ImportOptions {
    bool keepGoing = false; // what fits is imported although something does not
};

// What was done.
struct Imported {
    std::size_t texts = 0; // that changed
    std::size_t files = 0;
};

// Reads the file as XLIFF or PO, told by its content.
[[nodiscard]] Runtime::Result<std::vector<Handout>> readHandouts(const std::string& file,
                                                                 SourceBundle::Diagnostics& faults);

// Puts the translations into the files of `source`, all or none of them: only the texts that differ change. What does
// not fit is an error in `faults`: an unknown text, a text given twice, a development text that is not the one that was
// translated, placeholders that it does not have, a language that is not translated to. The result tells of files that
// cannot be read or written.
[[nodiscard]] Runtime::Result<Imported> importHandouts(const SourceBundle::Source& source,
                                                       std::span<const Handout> handouts, const ImportOptions& options,
                                                       SourceBundle::Diagnostics& faults);

} // namespace Exchange
