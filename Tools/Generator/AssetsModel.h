// Generator/AssetsModel.h
// The tree of assets for the emitter: every constant with its namespaces and its C++ name.
// Ownership: the constants point to the assets, which must outlive them. Threads: plain values.
#pragma once

#include "SourceBundle/Catalogs.h"
#include <span>
#include <string>
#include <vector>

namespace Generator {

struct AssetConstant {
    std::string groups; // the enclosing namespaces, outermost first: "Images::Icons"
    std::string name;
    const SourceBundle::SourceAsset* asset;
};

// An asset without a constant.
struct LeftOutAsset {
    const SourceBundle::SourceAsset* asset;
    std::string reason;
};

struct AssetTree {
    std::vector<AssetConstant> constants; // in the assets' order
    std::vector<LeftOutAsset> leftOut;    // likewise
};

// Warns about every asset that cannot have a constant. If names clash, the first asset in the alphabetical order of
// catalogs and names keeps the name.
[[nodiscard]] AssetTree assetTreeOf(std::span<const SourceBundle::SourceAsset> assets,
                                    SourceBundle::Diagnostics& diagnostics);

} // namespace Generator
