// Compiler/Tables.h
// Compiles string tables to their binary form; internal to the compiler.
#pragma once

#include "Compiler/Bundle.h"
#include "Compiler/StagedFolder.h"
#include <string>
#include <string_view>

namespace Compiler {

// Writes Info.plist and every table of `source` into `out`: for each language plain texts to TABLE.strings, plurals to
// TABLE.stringsdict. Instead of compiling plain texts again it keeps the file of the last compile if `lastMark`, the
// content of that compile's mark file (SourceBundle::compiledMark), lists it with the same texts. Returns the lines of
// the new mark file that list the files of plain texts. Diagnostics: what Info.plist loses, as notes.
[[nodiscard]] Runtime::Result<std::string> compileTables(const SourceBundle::Source& source, const StagedFolder& out,
                                                         std::string_view lastMark,
                                                         SourceBundle::Diagnostics& diagnostics,
                                                         const Progress& progress);

} // namespace Compiler
