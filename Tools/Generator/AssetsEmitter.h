// Generator/AssetsEmitter.h
// Writes the tree of assets as headers and sources.
#pragma once

#include "Generator/AssetsModel.h"
#include "Generator/Generator.h"
#include <span>
#include <vector>

namespace Generator {

// Constants of the same namespace must be adjacent.
[[nodiscard]] std::vector<OutputFile> emitAssets(std::span<const AssetConstant> constants, const Options& options);

} // namespace Generator
