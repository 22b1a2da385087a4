// Compiler/Tables.h
// Compiles string tables to their binary form; internal to the compiler.
#pragma once

#include "Compiler/Bundle.h"
#include "Compiler/StagedFolder.h"
#include <string>
#include <string_view>

namespace Compiler {

// Writes Info.plist and every table of `source` into `out`, one file for each table and language. Returns the lines of
// the mark file that list the tables for the next compile. Keeps tables that `lastMark`, the mark file of the last
// compile, lists; the result is the same as without them.
[[nodiscard]] Runtime::Result<std::string> compileTables(const SourceBundle::Source& source, const StagedFolder& out,
                                                         std::string_view lastMark, const Progress& progress);

} // namespace Compiler
