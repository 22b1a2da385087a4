// SourceBundle/Catalogs.h
// The asset catalogs of a source bundle, *.xcassets, as projects have them.
// Text: UTF-8; paths as the file system has them.
#pragma once

#include "AssetCatalog/internal/Model.h"
#include "SourceBundle/Diagnostics.h"
#include <filesystem>
#include <functional>
#include <span>
#include <string>
#include <vector>

namespace SourceBundle {

// A file of an image, symbol or data set, and the readers it is for.
struct SourceFile {
    AssetCatalog::Fit fit{};
    std::string language{};
    std::filesystem::path path{};
    std::string typeIdentifier{}; // of data, or empty
    // Of pictures:
    bool isSymbol = false; // see SourcePictures::Purpose
    bool preservesVector = false;
    AssetCatalog::Resizing resizing = AssetCatalog::Resizing::stretch;
    AssetCatalog::Insets capInsets{}; // in points
    AssetCatalog::Insets alignmentInsets{};
};

// One asset; only the list of its kind is filled, and not empty.
struct SourceAsset {
    AssetCatalog::Kind kind = AssetCatalog::Kind::image;
    std::string catalog{};        // "Images"
    std::string name{};           // "folder/name" in folders that provide a namespace
    std::filesystem::path path{}; // of the set's folder
    AssetCatalog::Rendering rendering = AssetCatalog::Rendering::automatic;
    std::vector<SourceFile> files{};
    std::vector<AssetCatalog::Color> colors{};
};

// Whether a picture's file can be used. Called from several threads.
using PictureCheck = std::function<Runtime::Result<void>(const SourceFile& file)>;

// Reads the file and checks it with SourcePictures::check().
[[nodiscard]] Runtime::Result<void> checkPicture(const SourceFile& file);

// The assets of the catalogs, which are folders, in the order of the catalogs and then of their paths, those of a
// folder before those of the folders in it. Several may have one kind and name, of which the first counts.
// Docs/catalogs.md says what is read. Whatever cannot be used is left out with a warning: a set with a broken
// Contents.json, a file that is missing or outside of its set, a picture that `check` refuses, a colour without
// meaning. What is left out on purpose is a note. Errors: a folder that cannot be read.
[[nodiscard]] std::vector<SourceAsset> sourceAssets(std::span<const std::filesystem::path> catalogs,
                                                    Diagnostics& diagnostics, const PictureCheck& check = checkPicture);

} // namespace SourceBundle
