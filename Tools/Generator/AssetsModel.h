// Generator/AssetsModel.h
// What the asset catalogs say, as the emitter needs it.
// Ownership: the constants point to the assets, which must outlive them. Threads: plain values.
#pragma once

#include "SourceBundle/Catalogs.h"
#include <span>
#include <string>
#include <vector>

namespace Generator {

// A constant of the tree.
struct AssetConstant {
    std::string groups; // the namespaces around it, outermost first: "Images::Icons"
    std::string name;   // in C++
    const SourceBundle::SourceAsset* asset;
};

// A constant for every asset, in the assets' order; one for those of one namespace, kind and name. Assets with a fault
// among `diagnostics` are left out.
[[nodiscard]] std::vector<AssetConstant> constantsOf(std::span<const SourceBundle::SourceAsset> assets,
                                                     SourceBundle::Diagnostics& diagnostics);

} // namespace Generator
