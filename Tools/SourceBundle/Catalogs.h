// SourceBundle/Catalogs.h
// The asset catalogs of a source bundle, *.xcassets, as projects have them.
// Text: UTF-8; paths as the file system has them. Threads: pure functions of the file system.
#pragma once

#include "AssetCatalog/internal/Model.h"
#include "SourceBundle/Diagnostics.h"
#include <filesystem>
#include <span>
#include <string>
#include <vector>

namespace SourceBundle {

// A file of an image or data set, and what it is for.
struct SourceFile {
    AssetCatalog::Fit fit;
    std::filesystem::path path;
    std::string typeIdentifier; // of data, or empty
};

// One asset; only what its kind has is filled, and at least one variant is there.
struct SourceAsset {
    AssetCatalog::Kind kind = AssetCatalog::Kind::image;
    std::string catalog;        // "Images"
    std::string name;           // "folder/name" in folders that provide a namespace
    std::filesystem::path path; // of the set's folder
    bool isTemplate = false;
    std::vector<SourceFile> files{};
    std::vector<AssetCatalog::ColorValue> colors{};
};

// The assets of the catalogs, which are folders, in their order and then in the order of their paths, those of a folder
// before those of the folders in it. Catalogs of one name are one. Several may have one kind and name; whoever has to
// choose takes the first. Diagnostics name the file: broken JSON, a file that would lie outside of its set and a colour
// without meaning are errors; a file that is missing and what is not supported are warnings, and it is left out; sets
// of other kinds are notes.
[[nodiscard]] std::vector<SourceAsset> sourceAssets(std::span<const std::filesystem::path> catalogs,
                                                    Diagnostics& diagnostics);

} // namespace SourceBundle
