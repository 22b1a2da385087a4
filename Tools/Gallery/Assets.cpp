#include "Gallery/Assets.h"

#include "AssetCatalog/internal/Catalog.h"
#include "AssetCatalog/internal/ColorSpaces.h"
#include "Gallery/Base64.h"
#include "Gallery/Traits.h"
#include "Generator/AssetsModel.h"
#include "Pictures/internal/Pictures.h"
#include <algorithm>
#include <cerrno>
#include <map>
#include <string>
#include <string_view>
#include <tuple>
#include <utility>
#include <vector>

namespace Gallery {

namespace fs = std::filesystem;
using AssetCatalog::Catalog;
using AssetCatalog::Entry;
using AssetCatalog::Kind;
using nlohmann::ordered_json;

namespace {

// Converts variants to JSON and adds their pictures to `assets`.
class VariantReader {
public:
    explicit VariantReader(Assets& assets) : assets_(assets) {}

    Runtime::Result<ordered_json> read(const Entry& entry, std::size_t variant) {
        ordered_json json = {{"traits", traitsOf(entry, variant)}};
        switch (entry.kind()) {
        case Kind::image:
            if (auto done = addPicture(entry.picture(variant), json); !done)
                return std::move(done.error());
            break;
        case Kind::color:
            json["space"] = AssetCatalog::nameOf(entry.color(variant).space);
            json["srgb"] = AssetCatalog::toExtendedSrgb(entry.color(variant));
            break;
        case Kind::data:
            json["type"] = entry.data(variant).typeIdentifier;
            json["bytes"] = entry.data(variant).blob.size;
            break;
        }
        return json;
    }

private:
    Runtime::Result<void> addPicture(const AssetCatalog::PictureView& picture, ordered_json& json) {
        const auto bytes = picture.blob.read();
        if (!bytes)
            return bytes.error();
        json["width"] = picture.width;
        json["height"] = picture.height;
        json["bytes"] = bytes->size();
        json["picture"] = assets_.pictures.size();
        const auto size = Pictures::measure(*bytes); // a catalog has only PNG and JPEG pictures
        const bool isPng = size && size->encoding == Pictures::Encoding::png;
        assets_.pictures.push_back(std::string(isPng ? "data:image/png" : "data:image/jpeg") + ";base64," +
                                   base64(*bytes));
        return {};
    }

    Assets& assets_;
};

using AssetKey = std::pair<Kind, std::string>;

// The accessor of each asset, its constant in the generated code, without the module's part: "Images::send" for
// LumoraAsset::Images::send.
std::map<AssetKey, std::string> accessorsOf(const std::vector<Entry>& entries) {
    std::vector<SourceBundle::SourceAsset> assets;
    assets.reserve(entries.size());
    for (const Entry& entry : entries)
        assets.push_back({.kind = entry.kind(),
                          .catalog = std::string(entry.catalog()),
                          .name = std::string(entry.name()),
                          .path = {}});
    SourceBundle::Diagnostics ignored; // `lumora generate` reports them
    std::map<AssetKey, std::string> accessors;
    const Generator::AssetTree tree = Generator::assetTreeOf(assets, ignored);
    for (const Generator::AssetConstant& constant : tree.constants)
        accessors.emplace(AssetKey(constant.asset->kind, constant.asset->name), constant.groups + "::" + constant.name);
    return accessors;
}

std::vector<Entry> entriesOf(const Catalog& catalog) {
    std::vector<Entry> entries;
    for (std::size_t i = 0; i < catalog.size(); ++i)
        entries.push_back(catalog[i]);
    std::ranges::sort(entries, {}, [](const Entry& entry) {
        return std::tuple(entry.catalog(), entry.name(), AssetCatalog::nameOf(entry.kind()));
    });
    return entries;
}

} // namespace

Runtime::Result<Assets> assetsOf(const fs::path& bundle) {
    auto catalog = Catalog::open(bundle / AssetCatalog::fileName);
    if (!catalog && catalog.error().cause == ENOENT)
        return Assets{};
    if (!catalog)
        return std::move(catalog.error());
    Assets assets;
    VariantReader reader(assets);
    const std::vector<Entry> entries = entriesOf(*catalog);
    const std::map<AssetKey, std::string> accessors = accessorsOf(entries);
    for (const Entry& entry : entries) {
        const auto accessor = accessors.find(AssetKey(entry.kind(), entry.name()));
        ordered_json asset = {{"kind", AssetCatalog::nameOf(entry.kind())},
                              {"catalog", entry.catalog()},
                              {"name", entry.name()},
                              {"accessor", nullptr},
                              {"template", entry.rendering() == AssetCatalog::Rendering::asTemplate},
                              {"variants", ordered_json::array()}};
        if (accessor != accessors.end())
            asset["accessor"] = accessor->second;
        for (std::size_t variant = 0; variant < entry.variants(); ++variant) {
            auto read = reader.read(entry, variant);
            if (!read)
                return std::move(read.error());
            asset["variants"].push_back(*std::move(read));
        }
        assets.list.push_back(std::move(asset));
    }
    return assets;
}

} // namespace Gallery
