// Generator/AssetsEmitter.h
// The tree of assets as headers and sources.
#pragma once

#include "Generator/AssetsModel.h"
#include "Generator/Generator.h"
#include <span>
#include <vector>

namespace Generator {

// Those of one namespace are in a row.
[[nodiscard]] std::vector<OutputFile> emitAssets(std::span<const AssetConstant> constants, const Options& options);

} // namespace Generator
