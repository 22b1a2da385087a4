// SourceBundle/SetContents.h
// Reads the Contents.json of one set of an asset catalog; internal.
#pragma once

#include "SourceBundle/Catalogs.h"
#include "SourcePictures/PictureFile.h"
#include <string_view>

namespace SourceBundle {

inline constexpr const char* contentsName = "Contents.json";
inline constexpr std::string_view symbolExtension = ".symbolset";

// Reads the set with the folder, kind and name of `asset` and fills in the other members. A set without a usable
// variant stays empty and gives exactly one warning that says so.
void readSet(SourceAsset& asset, const PictureCheck& check, Diagnostics& diagnostics);

// How the file of a picture is used.
[[nodiscard]] SourcePictures::Purpose purposeOf(const SourceFile& file);

} // namespace SourceBundle
