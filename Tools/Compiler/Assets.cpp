#include "Compiler/Assets.h"

#include "AssetCatalog/internal/Builder.h"
#include "AssetCatalog/internal/Catalog.h"
#include "Compiler/Vector.h"
#include "Pictures/internal/Decoders.h"
#include "Pictures/internal/Pictures.h"
#include "Runtime/internal/File.h"
#include "SourceBundle/Catalogs.h"
#include <algorithm>
#include <iterator>
#include <map>
#include <utility>

namespace Compiler {

namespace fs = std::filesystem;
using AssetCatalog::Asset;
using AssetCatalog::Picture;
using SourceBundle::Severity;
using SourceBundle::SourceAsset;
using SourceBundle::SourceFile;

namespace {

constexpr std::size_t maxFileBytes = std::size_t{256} << 20;

std::vector<std::uint8_t> bytesOf(const std::string& text) {
    return {text.begin(), text.end()};
}

Runtime::Result<std::vector<Picture>> raster(const SourceFile& file, const std::string& bytes) {
    auto data = bytesOf(bytes);
    const auto size = Pictures::measure(data);
    if (!size)
        return size.error();
    if (std::uint64_t{size->width} * size->height > AssetCatalog::maxPixels)
        return Runtime::Error{.message = "is a picture larger than a catalog may hold"};
    const bool isPng = size->encoding == Pictures::Encoding::png;
    const auto decode = isPng ? Pictures::decodePng : Pictures::decodeJpeg;
    if (const auto decoded = decode(data, AssetCatalog::maxPixels); !decoded)
        return decoded.error();
    Picture picture{.fit = file.fit, .width = size->width, .height = size->height, .bytes = {}};
    picture.encoding = isPng ? AssetCatalog::Encoding::png : AssetCatalog::Encoding::jpeg;
    picture.bytes = std::move(data);
    std::vector<Picture> pictures;
    pictures.push_back(std::move(picture));
    return pictures;
}

// One picture for each scale that a reader may have. A drawing made for one scale is drawn in that scale's pixels
// already.
Runtime::Result<std::vector<Picture>> vectors(const SourceFile& file, const std::string& bytes, VectorForm form) {
    const bool isForOneScale = file.fit.scale != 0;
    std::vector<Picture> pictures;
    for (const std::uint8_t scale : isForOneScale ? std::vector{file.fit.scale} : std::vector<std::uint8_t>{1, 2, 3}) {
        auto rendered = render(bytes, form, isForOneScale ? 1 : scale);
        if (!rendered)
            return std::move(rendered.error());
        rendered->fit = file.fit;
        rendered->fit.scale = scale;
        pictures.push_back(*std::move(rendered));
    }
    return pictures;
}

Runtime::Result<std::vector<Picture>> picturesOf(const SourceFile& file) {
    auto bytes = Runtime::readFile(file.path, maxFileBytes);
    if (!bytes)
        return std::move(bytes.error());
    const std::optional<VectorForm> form = vectorFormOf(*bytes);
    auto pictures = form ? vectors(file, *bytes, *form) : raster(file, *bytes);
    if (!pictures)
        pictures.error().file = file.path;
    return pictures;
}

// The asset with the bytes of its files. What cannot be read is an error.
Asset compiled(const SourceAsset& source, SourceBundle::Diagnostics& diagnostics) {
    Asset asset{.kind = source.kind,
                .catalog = source.catalog,
                .name = source.name,
                .isTemplate = source.isTemplate,
                .pictures = {},
                .colors = source.colors,
                .data = {}};
    for (const SourceFile& file : source.files) {
        if (source.kind == AssetCatalog::Kind::image) {
            auto pictures = picturesOf(file);
            if (!pictures)
                diagnostics.add(Severity::error, std::move(pictures.error()));
            else
                std::ranges::move(*pictures, std::back_inserter(asset.pictures));
        } else {
            auto bytes = Runtime::readFile(file.path, maxFileBytes);
            if (!bytes)
                diagnostics.add(Severity::error, std::move(bytes.error()));
            else
                asset.data.push_back(
                    {.fit = file.fit, .typeIdentifier = file.typeIdentifier, .bytes = bytesOf(*bytes)});
        }
    }
    return asset;
}

// A catalog has one asset of each kind and name: the first.
void leaveOutTwins(std::vector<SourceAsset>& assets, SourceBundle::Diagnostics& diagnostics) {
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

} // namespace

Runtime::Result<void> compileAssets(const SourceBundle::Source& source, const fs::path& out,
                                    SourceBundle::Diagnostics& diagnostics, const Progress& progress) {
    std::vector<SourceAsset> sources = SourceBundle::sourceAssets(source.catalogs, diagnostics);
    leaveOutTwins(sources, diagnostics);
    std::vector<Asset> assets;
    for (std::size_t done = 0; done < sources.size(); ++done) {
        progress(sources[done].name, done, sources.size());
        assets.push_back(compiled(sources[done], diagnostics));
    }
    if (assets.empty() || diagnostics.hasErrors())
        return {};
    auto catalog = AssetCatalog::build(std::move(assets));
    if (!catalog)
        return std::move(catalog.error());
    return Runtime::writeFile(out / AssetCatalog::fileName, *catalog);
}

} // namespace Compiler
