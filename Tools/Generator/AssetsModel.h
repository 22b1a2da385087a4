// Generator/AssetsModel.h
// The tree of assets, as the emitter needs it.
// Ownership: the constants point to the assets, which must outlive them. Threads: plain values.
#pragma once

#include "SourceBundle/Catalogs.h"
#include <span>
#include <string>
#include <vector>

namespace Generator {

struct AssetConstant {
    std::string groups; // the namespaces around it, outermost first: "Images::Icons"
    std::string name;   // in C++
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

// An asset that can have no constant is a warning; the first asset of a clash keeps the name.
[[nodiscard]] AssetTree assetTreeOf(std::span<const SourceBundle::SourceAsset> assets,
                                    SourceBundle::Diagnostics& diagnostics);

} // namespace Generator
