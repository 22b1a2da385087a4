// Program/AssetCatalogs.h
// Opens the compiled catalog that a command reads.
#pragma once

#include "AssetCatalog/internal/Catalog.h"
#include <optional>
#include <string>

namespace Tools {

// The catalog of the bundle at the path `bundle`, or of ownBundle() if the path is empty. No value if the bundle has no
// assets. Errors: no such folder, an unreadable or damaged catalog.
[[nodiscard]] Runtime::Result<std::optional<AssetCatalog::Catalog>> openCatalog(const std::string& bundle);

} // namespace Tools
