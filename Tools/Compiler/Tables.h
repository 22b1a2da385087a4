// Compiler/Tables.h
// Compiles string tables to their binary form; internal to the compiler.
#pragma once

#include "Compiler/Bundle.h"
#include "Compiler/StagedFolder.h"

namespace Compiler {

// Writes Info.plist and every table of `source` into `out`, one file for each table and language.
[[nodiscard]] Runtime::Result<void> compileTables(const SourceBundle::Source& source, const StagedFolder& out,
                                                  const Progress& progress);

} // namespace Compiler
