// Check/AssetRules.h
// asset-missing-scale, asset-missing-dark: the variants that a set lacks. What is wrong with the variants that it has
// is among the messages of reading it.
#pragma once

#include "Check/Report.h"
#include "SourceBundle/Catalogs.h"
#include <span>

namespace Check {

// Reads the Contents.json of each asset anew, because empty places in it are no part of an asset.
void checkAssets(std::span<const SourceBundle::SourceAsset> assets, Report& report);

} // namespace Check
