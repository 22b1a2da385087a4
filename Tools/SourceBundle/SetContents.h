// SourceBundle/SetContents.h
// The Contents.json of one set of an asset catalog; internal.
#pragma once

#include "SourceBundle/Catalogs.h"

namespace SourceBundle {

// Reads the set whose folder, kind and name `asset` holds, and fills in the rest.
void readSet(SourceAsset& asset, Diagnostics& diagnostics);

// Whether the folder's Contents.json makes its name a part of the names below it.
[[nodiscard]] bool providesNamespace(const std::filesystem::path& folder, Diagnostics& diagnostics);

} // namespace SourceBundle
