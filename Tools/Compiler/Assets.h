// Compiler/Assets.h
// Compiles the asset catalogs of a source into one catalog; internal to the compiler.
#pragma once

#include "Compiler/Bundle.h"
#include "Compiler/StagedFolder.h"
#include <filesystem>
#include <span>
#include <string>
#include <string_view>

namespace Compiler {

// Writes Assets.catalog to `out` if the catalogs have assets and `diagnostics` has no errors. Returns the lines of the
// mark file (SourceBundle::compiledMark) that list the catalog's pictures, or an empty text if it writes no catalog. To
// save time, takes pictures from the bundle at `out.target()` if `lastMark`, the content of its mark file, lists them.
[[nodiscard]] Runtime::Result<std::string> compileAssets(std::span<const std::filesystem::path> catalogs,
                                                         const StagedFolder& out, std::string_view lastMark,
                                                         SourceBundle::Diagnostics& diagnostics,
                                                         const Progress& progress);

} // namespace Compiler
