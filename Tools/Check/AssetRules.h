// Check/AssetRules.h
// asset-missing-scale, asset-missing-dark: finds missing variants. MessageFindings.h has the rules for faulty ones.
#pragma once

#include "Check/Report.h"
#include "SourceBundle/Catalogs.h"
#include <span>

namespace Check {

// Reads the Contents.json of each image and colour again, because SourceAsset does not have the entries without a file
// or colour. Symbols and data are not checked.
void checkAssets(std::span<const SourceBundle::SourceAsset> assets, Report& report);

} // namespace Check
