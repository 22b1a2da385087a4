// Compiler/Assets.h
// Compiles the asset catalogs of a source into one catalog; internal to the compiler.
#pragma once

#include "Compiler/Bundle.h"
#include "Compiler/StagedFolder.h"
#include <filesystem>
#include <span>

namespace Compiler {

// Writes Assets.catalog if the catalogs have assets, and the bundle's mark file, which lists its pictures for the next
// compile. Reuses pictures of the last compile; the result is the same as without them.
[[nodiscard]] Runtime::Result<void> compileAssets(std::span<const std::filesystem::path> catalogs, StagedFolder& out,
                                                  SourceBundle::Diagnostics& diagnostics, const Progress& progress);

} // namespace Compiler
