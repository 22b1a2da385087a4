// Compiler/Assets.h
// The asset catalogs of a source, made into one compiled catalog; internal to the compiler.
#pragma once

#include "Compiler/Bundle.h"
#include "Compiler/StagedFolder.h"
#include <filesystem>
#include <span>

namespace Compiler {

// Writes Assets.catalog if the catalogs have assets, and the bundle's mark, which lists the pictures in it for the next
// compile. Uses what the last compile of the bundle made; the result is the same without it.
[[nodiscard]] Runtime::Result<void> compileAssets(std::span<const std::filesystem::path> catalogs, StagedFolder& out,
                                                  SourceBundle::Diagnostics& diagnostics, const Progress& progress);

} // namespace Compiler
