// Compiler/Assets.h
// The asset catalogs of a bundle, made into one compiled catalog; internal to the compiler.
#pragma once

#include "Compiler/Bundle.h"

namespace Compiler {

// Writes Assets.catalog below `out` if `source` has asset catalogs. Vectors are rendered at one, two and three pixels a
// point. A file that cannot be read, or is no picture, is an error among `diagnostics`; nothing is written then.
[[nodiscard]] Runtime::Result<void> compileAssets(const SourceBundle::Source& source, const std::filesystem::path& out,
                                                  SourceBundle::Diagnostics& diagnostics, const Progress& progress);

} // namespace Compiler
