// Generator/AssetsEmitter.h
// The tree of assets as headers and sources.
#pragma once

#include "Generator/AssetsModel.h"
#include "Generator/Generator.h"
#include <span>
#include <vector>

namespace Generator {

// For constants without faults, those of one namespace in a row.
[[nodiscard]] std::vector<OutputFile> emitAssets(std::span<const AssetConstant> constants, const Options& options);

} // namespace Generator
