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
struct SetFile {
    AssetCatalog::Fit fit{};
    std::string language{}; // "pt-BR"; empty: for all languages
    std::filesystem::path path{};
    std::string typeIdentifier{}; // of data: "public.json", or empty
    // For pictures. The first two are explained in SourcePictures::Purpose; the insets are in points.
    bool isSymbol = false;
    bool preservesVector = false;
    AssetCatalog::Resizing resizing = AssetCatalog::Resizing::stretch;
    AssetCatalog::Insets capInsets{};
    AssetCatalog::Insets alignmentInsets{};
};

// One asset. A colour has at least one of `colors`, any other asset at least one of `files`.
struct SourceAsset {
    AssetCatalog::Kind kind = AssetCatalog::Kind::image;
    std::string catalog{};        // "Images"
    std::string name{};           // "folder/name" in folders that provide a namespace
    std::filesystem::path path{}; // of the set's folder
    AssetCatalog::Rendering rendering = AssetCatalog::Rendering::automatic;
    std::vector<SetFile> files{};
    std::vector<AssetCatalog::Color> colors{};
};

// Checks whether a picture's file is usable. It is called on several threads at the same time.
using PictureCheck = std::function<Runtime::Result<void>(const SetFile& file)>;

// Reads the file and checks it with SourcePictures::check().
[[nodiscard]] Runtime::Result<void> checkPicture(const SetFile& file);

// Reads the assets of the catalogs. They are ordered as `catalogs` is, then by path, with those of a folder before
// those of its subfolders. Several may have the same kind and name; the first one counts. Docs/catalogs.md describes
// what is read. Unusable parts are left out with a warning, such as a set with a broken Contents.json, a file that is
// missing or outside of its set, a picture that `check` rejects, or an invalid colour. Unsupported features are notes.
// Errors: a folder that is unreadable, or nested more than maxFolderDepth (SourceFiles.h) deep; a picture that cannot
// be read because of a system error; a Contents.json that cannot be read because of a transient error (Runtime::Error).
[[nodiscard]] std::vector<SourceAsset> sourceAssets(std::span<const std::filesystem::path> catalogs,
                                                    Diagnostics& diagnostics, const PictureCheck& check = checkPicture);

} // namespace SourceBundle
