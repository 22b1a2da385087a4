// SourceBundle/Catalogs.h
// Reads the asset catalogs of a source, *.xcassets.
// Text: UTF-8; paths are raw bytes.
#pragma once

#include "AssetCatalog/internal/Model.h"
#include "SourceBundle/Diagnostics.h"
#include <filesystem>
#include <functional>
#include <span>
#include <string>
#include <vector>

namespace SourceBundle {

// A file of an image, symbol or data set, with the traits and language that it is for.
struct SourceFile {
    AssetCatalog::Fit fit{};
    std::string language{};
    std::filesystem::path path{};
    std::string typeIdentifier{}; // of data, or empty
    // For pictures:
    bool isSymbol = false; // see SourcePictures::Purpose
    bool preservesVector = false;
    AssetCatalog::Resizing resizing = AssetCatalog::Resizing::stretch;
    AssetCatalog::Insets capInsets{}; // in points
    AssetCatalog::Insets alignmentInsets{};
};

// One asset. Only the list for its kind is used, and it is not empty.
struct SourceAsset {
    AssetCatalog::Kind kind = AssetCatalog::Kind::image;
    std::string catalog{};        // "Images"
    std::string name{};           // "folder/name" in folders that provide a namespace
    std::filesystem::path path{}; // of the set's folder
    AssetCatalog::Rendering rendering = AssetCatalog::Rendering::automatic;
    std::vector<SourceFile> files{};
    std::vector<AssetCatalog::Color> colors{};
};

// Checks whether a picture's file is usable. Called from several threads.
using PictureCheck = std::function<Runtime::Result<void>(const SourceFile& file)>;

// Reads the file and checks it with SourcePictures::check().
[[nodiscard]] Runtime::Result<void> checkPicture(const SourceFile& file);

// Reads the assets of the catalogs. They are ordered by catalog, then by path, with those of a folder before those of
// its subfolders. Several may have the same kind and name; the first one counts. Docs/catalogs.md describes what is
// read. Unusable parts are left out with a warning: a set with a broken Contents.json, a file that is missing or
// outside of its set, a picture that `check` rejects, an invalid colour. Unsupported features are notes. Errors: an
// unreadable folder.
[[nodiscard]] std::vector<SourceAsset> sourceAssets(std::span<const std::filesystem::path> catalogs,
                                                    Diagnostics& diagnostics, const PictureCheck& check = checkPicture);

} // namespace SourceBundle
