#include "AssetCatalog/internal/Builder.h"

#include "AssetCatalog/internal/Catalog.h"
#include "AssetCatalog/internal/Layout.h"
#include <algorithm>
#include <map>
#include <string_view>
#include <tuple>

namespace AssetCatalog {

namespace {

std::uint64_t hashOf(const Asset& asset) {
    return Format::hashOf(asset.kind, asset.name);
}

Format::Fit fitOf(const Fit& fit) {
    return {static_cast<std::uint8_t>(fit.appearance), static_cast<std::uint8_t>(fit.contrast),
            static_cast<std::uint8_t>(fit.direction), fit.scale};
}

// By fit, one of each.
template <class Variant> void order(std::vector<Variant>& variants) {
    const auto key = [](const Variant& variant) {
        return std::tuple(variant.fit.direction, variant.fit.appearance, variant.fit.contrast, variant.fit.scale);
    };
    std::stable_sort(variants.begin(), variants.end(),
                     [&](const Variant& one, const Variant& other) { return key(one) < key(other); });
    const auto same = [](const Variant& one, const Variant& other) { return one.fit == other.fit; };
    variants.erase(std::unique(variants.begin(), variants.end(), same), variants.end());
}

class Writer {
public:
    void add(Asset& asset) {
        hashes_.push_back(hashOf(asset));
        // Parts before the table that holds them: the container is written from its end.
        const auto catalog = buffer_.CreateSharedString(asset.catalog);
        const auto name = buffer_.CreateString(asset.name);
        List<const Format::Picture*> pictures;
        List<const Format::Color*> colors;
        List<flatbuffers::Offset<Format::Data>> data;
        switch (asset.kind) {
        case Kind::image:
            pictures = add(asset.pictures);
            break;
        case Kind::color:
            colors = add(asset.colors);
            break;
        case Kind::data:
            data = add(asset.data);
            break;
        }
        assets_.push_back(Format::CreateAsset(buffer_, static_cast<std::uint8_t>(asset.kind), asset.isTemplate, catalog,
                                              name, pictures, colors, data));
    }

    std::string finish() {
        const auto hashes = buffer_.CreateVector(hashes_);
        const auto assets = buffer_.CreateVector(assets_);
        Format::FinishSizePrefixedCatalogBuffer(
            buffer_, Format::CreateCatalog(buffer_, Format::version, blobs_.size(), hashes, assets));
        std::string bytes(reinterpret_cast<const char*>(buffer_.GetBufferPointer()), buffer_.GetSize());
        bytes.resize(Format::aligned(bytes.size()));
        return bytes + blobs_;
    }

private:
    template <class Element> using List = flatbuffers::Offset<flatbuffers::Vector<Element>>;

    List<const Format::Picture*> add(std::vector<Picture>& pictures) {
        order(pictures);
        std::vector<Format::Picture> out;
        out.reserve(pictures.size());
        for (const Picture& picture : pictures)
            out.emplace_back(add(picture.bytes), picture.bytes.size(), picture.width, picture.height,
                             fitOf(picture.fit), static_cast<std::uint8_t>(picture.encoding));
        return buffer_.CreateVectorOfStructs(out);
    }
    List<const Format::Color*> add(std::vector<ColorValue>& colors) {
        order(colors);
        std::vector<Format::Color> out;
        out.reserve(colors.size());
        for (const auto& [fit, space, components] : colors)
            out.emplace_back(components[0], components[1], components[2], components[3], fitOf(fit),
                             static_cast<std::uint8_t>(space));
        return buffer_.CreateVectorOfStructs(out);
    }
    List<flatbuffers::Offset<Format::Data>> add(std::vector<Data>& data) {
        order(data);
        std::vector<flatbuffers::Offset<Format::Data>> out;
        for (const Data& each : data) {
            const Format::Fit fit = fitOf(each.fit);
            out.push_back(Format::CreateData(buffer_, add(each.bytes), each.bytes.size(), &fit,
                                             buffer_.CreateSharedString(each.typeIdentifier)));
        }
        return buffer_.CreateVector(out);
    }

    // Where among the blobs these bytes lie.
    std::uint64_t add(const std::vector<std::uint8_t>& bytes) {
        const std::string_view text(reinterpret_cast<const char*>(bytes.data()), bytes.size());
        const auto [place, isNew] = places_.try_emplace(std::string(text), blobs_.size());
        if (isNew)
            blobs_.append(text).resize(Format::aligned(blobs_.size()));
        return place->second;
    }

    flatbuffers::FlatBufferBuilder buffer_;
    std::vector<std::uint64_t> hashes_;
    std::vector<flatbuffers::Offset<Format::Asset>> assets_;
    std::string blobs_;
    std::map<std::string, std::uint64_t> places_;
};

} // namespace

Runtime::Result<std::string> build(std::vector<Asset> assets) {
    std::ranges::sort(assets, {}, hashOf);
    if (const auto twin = std::ranges::adjacent_find(assets, {}, hashOf); twin != assets.end())
        return Runtime::Error{.message = "two assets of one kind are named \"" + twin->name + "\"", .file = {}};
    Writer writer;
    for (Asset& asset : assets)
        writer.add(asset);
    std::string bytes = writer.finish();
    // What readers would not believe is not written.
    if (auto sound = Catalog::read({reinterpret_cast<const std::uint8_t*>(bytes.data()), bytes.size()}); !sound)
        return std::move(sound.error());
    return bytes;
}

} // namespace AssetCatalog
