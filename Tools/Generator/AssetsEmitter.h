// Generator/AssetsEmitter.h
// Makes the headers and the source of the tree of assets, and NAMEConveniences.h (see SwiftUI/ModuleConveniences.h).
#pragma once

#include "Generator/AssetsModel.h"
#include "Generator/Generator.h"
#include <span>
#include <vector>

namespace Generator {

// Requires valid options; see check().
[[nodiscard]] std::vector<OutputFile> emitAssets(std::span<const AssetConstant> constants, const Options& options);

} // namespace Generator
