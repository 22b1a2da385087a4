#include "Compiler/Assets.h"

#include "AssetCatalog/internal/Builder.h"
#include "AssetCatalog/internal/Catalog.h"
#include "Compiler/PictureCache.h"
#include "Runtime/internal/File.h"
#include "Runtime/internal/NameMap.h"
#include "SourceBundle/Catalogs.h"
#include "SourceBundle/Parallel.h"
#include "SourceBundle/SetContents.h" // purposeOf
#include <algorithm>
#include <iterator>
#include <map>
#include <mutex>
#include <string_view>
#include <utility>

namespace Compiler {

namespace fs = std::filesystem;
using AssetCatalog::Asset;
using AssetCatalog::Bytes;
using AssetCatalog::Picture;
using SourceBundle::Diagnostics;
using SourceBundle::SetFile;
using SourceBundle::Severity;
using SourceBundle::SourceAsset;

namespace {

// Reads the files of the source and makes the pictures of picture files. Keeps the bytes, once for files with equal
// contents, and the pictures, once for files that also have equal purposes.
// Threads: any.
class Files {
public:
    explicit Files(PictureCache cache) : cache_(std::move(cache)) {}

    // Errors: the file cannot be read, it has more than SourcePictures::maxFileBytes, all files together have more than
    // a catalog may contain.
    Runtime::Result<Bytes> bytes(const fs::path& path) {
        {
            const std::lock_guard guard(lock_);
            if (const auto known = read_.find(path.native()); known != read_.end())
                return known->second;
        }
        auto text = Runtime::readFile(path, SourcePictures::maxFileBytes);
        if (!text)
            return std::move(text.error());
        Bytes bytes = AssetCatalog::shared(*std::move(text));
        const std::lock_guard guard(lock_);
        const auto [same, isNew] = contents_.try_emplace(*bytes, bytes);
        total_ += isNew ? bytes->size() : 0;
        if (total_ > AssetCatalog::maxBytes)
            return Runtime::Error{.message = "together with the files before it exceeds the size limit of a catalog",
                                  .file = path};
        return read_.try_emplace(path.native(), same->second).first->second;
    }

    // Checks that pictures() will succeed, as far as SourcePictures::check() does.
    Runtime::Result<void> check(const SetFile& file) {
        const auto read = bytes(file.path);
        if (!read)
            return read.error();
        const SourcePictures::Purpose purpose = SourceBundle::purposeOf(file);
        if (cache_.has(PictureCache::keyOf(**read, purpose))) // the last compile succeeded
            return {};
        auto checked = SourcePictures::check(**read, purpose);
        if (!checked)
            checked.error().file = file.path;
        return checked;
    }

    Runtime::Result<std::vector<Picture>> pictures(const SetFile& file) {
        const auto read = bytes(file.path);
        if (!read)
            return read.error();
        const SourcePictures::Purpose purpose = SourceBundle::purposeOf(file);
        const std::string key = PictureCache::keyOf(**read, purpose);
        std::optional<std::vector<Picture>> pictures = cache_.find(key);
        if (!pictures) {
            auto made = SourcePictures::picturesOf(*read, purpose);
            if (!made) {
                made.error().file = file.path;
                return made;
            }
            pictures = *std::move(made);
        }
        const std::lock_guard guard(lock_);
        return made_.try_emplace(key, *std::move(pictures)).first->second;
    }

    // Precondition: no other thread uses this object any more.
    const MadePictures& made() const { return made_; }

private:
    const PictureCache cache_;                           // of the last compile
    std::mutex lock_;                                    // for the members below
    Runtime::NameMap<Bytes> read_;                       // by path
    Runtime::NameMap<Bytes, std::string_view> contents_; // by content; keys point into values
    std::size_t total_ = 0;                              // the number of bytes in contents_
    MadePictures made_;                                  // of this compile, also from the cache
};

// Pictures at the scale of their file come before those that were drawn from a file for another scale or for every
// scale, because the catalog uses the first of several for the same traits.
void addPictures(const SourceAsset& source, Files& files, Asset& asset, Diagnostics& diagnostics) {
    std::vector<Picture> drawn;
    for (const SetFile& file : source.files) {
        auto pictures = files.pictures(file);
        if (!pictures) {
            diagnostics.add(Severity::error, std::move(pictures.error()));
            continue;
        }
        for (Picture& picture : *pictures) {
            const bool hasFileScale = picture.fit.scale == file.fit.scale;
            const std::uint8_t scale = picture.fit.scale;
            picture.fit = file.fit;
            picture.fit.scale = scale;
            picture.language = file.language;
            picture.resizing = file.resizing;
            picture.capInsets = file.capInsets;
            picture.alignmentInsets = file.alignmentInsets;
            (hasFileScale ? asset.pictures : drawn).push_back(std::move(picture));
        }
    }
    std::ranges::move(drawn, std::back_inserter(asset.pictures));
}

void addData(const SourceAsset& source, Files& files, Asset& asset, Diagnostics& diagnostics) {
    for (const SetFile& file : source.files) {
        auto bytes = files.bytes(file.path);
        if (bytes)
            asset.data.push_back({.fit = file.fit,
                                  .language = file.language,
                                  .typeIdentifier = file.typeIdentifier,
                                  .bytes = *std::move(bytes)});
        else
            diagnostics.add(Severity::error, std::move(bytes.error()));
    }
}

Asset compiled(const SourceAsset& source, Files& files, Diagnostics& diagnostics) {
    Asset asset{.kind = source.kind, .catalog = source.catalog, .name = source.name, .rendering = source.rendering};
    switch (source.kind) {
    case AssetCatalog::Kind::image:
        addPictures(source, files, asset, diagnostics);
        break;
    case AssetCatalog::Kind::color:
        asset.colors = source.colors;
        break;
    case AssetCatalog::Kind::data:
        addData(source, files, asset, diagnostics);
        break;
    }
    return asset;
}

// Keeps the first asset of each kind and name; a catalog cannot have several.
void removeDuplicates(std::vector<SourceAsset>& assets, Diagnostics& diagnostics) {
    std::map<std::pair<AssetCatalog::Kind, std::string>, fs::path> taken;
    std::erase_if(assets, [&](const SourceAsset& asset) {
        const auto [before, isNew] = taken.try_emplace({asset.kind, asset.name}, asset.path);
        if (!isNew)
            diagnostics.add(
                Severity::warning,
                {.message = "has the name of " + before->second.string() + " and is left out", .file = asset.path});
        return !isNew;
    });
}

std::vector<Asset> compiledAssets(std::span<const fs::path> catalogs, Files& files, Diagnostics& diagnostics,
                                  const Progress& progress) {
    std::vector<SourceAsset> sources =
        SourceBundle::sourceAssets(catalogs, diagnostics, [&](const SetFile& file) { return files.check(file); });
    removeDuplicates(sources, diagnostics);
    std::vector<Asset> assets(sources.size());
    std::vector<Diagnostics> messages(sources.size());
    std::mutex lock;
    std::size_t begun = 0;
    SourceBundle::inParallel(sources.size(), [&](std::size_t i) {
        {
            const std::lock_guard guard(lock);
            progress(sources[i].name, begun++, sources.size());
        }
        assets[i] = compiled(sources[i], files, messages[i]);
    });
    for (const Diagnostics& ofOne : messages)
        diagnostics.add(ofOne);
    return assets;
}

} // namespace

Runtime::Result<std::string> compileAssets(std::span<const fs::path> catalogs, const StagedFolder& out,
                                           std::string_view lastMark, Diagnostics& diagnostics,
                                           const Progress& progress) {
    Files files(PictureCache::of(out.target(), lastMark));
    std::vector<Asset> assets = compiledAssets(catalogs, files, diagnostics, progress);
    if (assets.empty() || diagnostics.hasErrors())
        return std::string();
    const auto catalog = AssetCatalog::build(std::move(assets));
    if (!catalog)
        return catalog.error();
    if (auto written = out.write(AssetCatalog::fileName, catalog->pieces()); !written)
        return std::move(written.error());
    return cacheList(files.made(), *catalog);
}

} // namespace Compiler
