// SourceBundle/SetContents.h
// Reads the Contents.json of one set of an asset catalog.
#pragma once

#include "SourceBundle/Catalogs.h"
#include "SourcePictures/PictureFile.h"
#include <string_view>

namespace SourceBundle {

inline constexpr const char* contentsName = "Contents.json";
inline constexpr std::string_view symbolExtension = ".symbolset";

// Reads the set in the folder `asset.path` and fills in `rendering`, `files` and `colors`; the other members are set
// already. If the set has no usable variant, `files` and `colors` stay empty, and there is a warning that says so or an
// error.
void readSet(SourceAsset& asset, const PictureCheck& check, Diagnostics& diagnostics);

// What SourcePictures must know about a picture's file.
[[nodiscard]] SourcePictures::Purpose purposeOf(const SetFile& file);

} // namespace SourceBundle
