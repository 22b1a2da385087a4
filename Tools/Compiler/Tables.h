// Compiler/Tables.h
// The string tables of a bundle, from any form to the binary one; internal to the compiler.
#pragma once

#include "Compiler/Bundle.h"

namespace Compiler {

// Writes Info.plist and every table of `source` below `out`.
[[nodiscard]] Runtime::Result<void> compileTables(const std::filesystem::path& source, const std::filesystem::path& out,
                                                  SourceBundle::Diagnostics& diagnostics, const Progress& progress);

} // namespace Compiler
