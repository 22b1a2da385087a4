// AssetCatalog/internal/Builder.h
// Makes compiled catalogs. No part of the run-time library.
// Text: UTF-8. Threads: pure functions.
#pragma once

#include "AssetCatalog/internal/Model.h"
#include "Runtime/internal/Result.h"
#include <string>
#include <vector>

namespace AssetCatalog {

// The bytes of a catalog with these assets, the same for the same assets in any order. Of several variants with one fit
// the first counts; equal blobs are stored once. Errors name the asset: two of one kind and name, no variant, a number
// out of its range, more than a catalog may hold (see Catalog.h).
[[nodiscard]] Runtime::Result<std::string> build(std::vector<Asset> assets);

} // namespace AssetCatalog
