#include "AssetCatalog/internal/Builder.h"

#include "AssetCatalog/internal/Catalog.h"
#include "AssetCatalog/internal/Check.h"
#include "AssetCatalog/internal/Layout.h"
#include <algorithm>
#include <string>
#include <tuple>
#include <utility>

namespace AssetCatalog {

namespace {

std::uint64_t hashOf(const Asset& asset) {
    return Format::hashOf(asset.kind, asset.name);
}
// The order of the assets in the file.
std::tuple<std::uint64_t, Kind, std::string_view> orderOf(const Asset& asset) {
    return {hashOf(asset), asset.kind, asset.name};
}

Runtime::Error failure(std::string message) {
    return {.message = std::move(message), .file = std::string(fileName)};
}

Format::Fit toFormat(const Fit& fit) {
    return {static_cast<std::uint8_t>(fit.appearance), static_cast<std::uint8_t>(fit.contrast),
            static_cast<std::uint8_t>(fit.direction), fit.scale};
}
Format::Insets toFormat(const Insets& insets) {
    return {insets.top, insets.left, insets.bottom, insets.right};
}

// Sorts the variants by language and traits. Of those for the same language and traits keeps the first.
template <class Variant> void sortDistinct(std::vector<Variant>& variants) {
    const auto key = [](const Variant& variant) {
        const Fit& fit = variant.fit;
        return std::tuple(std::string_view(variant.language), fit.direction, fit.appearance, fit.contrast, fit.scale);
    };
    std::ranges::stable_sort(variants, {}, key);
    const auto isSame = [&key](const auto& one, const auto& other) { return key(one) == key(other); };
    // Not std::ranges::unique: clang 14 cannot compile it with this standard library.
    variants.erase(std::unique(variants.begin(), variants.end(), isSame), variants.end());
}

// The distinct blobs in the order in which they were added.
class BlobList {
public:
    // Adds a blob and returns its offset from the first blob.
    std::uint64_t add(const Bytes& bytes) {
        const auto [known, isNew] = offsets_.try_emplace(*bytes, size_);
        if (isNew) {
            blobs_.push_back(bytes);
            size_ += Format::aligned(bytes->size());
        }
        return known->second;
    }

    std::uint64_t size() const { return size_; }
    // Moves the blobs into `built`, whose index is complete, so that their offsets in the file are known.
    void moveTo(BuiltCatalog& built) {
        for (auto& [bytes, offset] : offsets_)
            offset += built.index.size();
        built.blobs = std::move(blobs_);
        built.offsets = std::move(offsets_);
    }

private:
    std::vector<Bytes> blobs_;
    Runtime::NameMap<std::uint64_t, std::string_view> offsets_;
    std::uint64_t size_ = 0; // in bytes, with the zeros after each blob
};

class Writer {
public:
    void add(Asset& asset) {
        hashes_.push_back(hashOf(asset));
        // FlatBuffers are built bottom-up: children before the table that contains them.
        const auto catalog = buffer_.CreateSharedString(asset.catalog);
        const auto name = buffer_.CreateString(asset.name);
        List<Format::Picture> pictures;
        List<Format::Color> colors;
        List<Format::Data> data;
        switch (asset.kind) {
        case Kind::image:
            pictures = list<Format::Picture>(asset.pictures);
            break;
        case Kind::color:
            colors = list<Format::Color>(asset.colors);
            break;
        case Kind::data:
            data = list<Format::Data>(asset.data);
            break;
        }
        assets_.push_back(Format::CreateAsset(buffer_, static_cast<std::uint8_t>(asset.kind),
                                              static_cast<std::uint8_t>(asset.rendering), catalog, name, pictures,
                                              colors, data));
    }

    BuiltCatalog finish() {
        const auto hashes = buffer_.CreateVector(hashes_);
        const auto assets = buffer_.CreateVector(assets_);
        Format::FinishSizePrefixedCatalogBuffer(
            buffer_, Format::CreateCatalog(buffer_, Format::version, blobs_.size(), hashes, assets));
        BuiltCatalog built;
        built.index.assign(reinterpret_cast<const char*>(buffer_.GetBufferPointer()), buffer_.GetSize());
        built.index.resize(Format::aligned(built.index.size()));
        blobs_.moveTo(built);
        return built;
    }

private:
    template <class Table> using List = flatbuffers::Offset<flatbuffers::Vector<flatbuffers::Offset<Table>>>;

    template <class Table, class Variant> List<Table> list(std::vector<Variant>& variants) {
        sortDistinct(variants);
        std::vector<flatbuffers::Offset<Table>> tables;
        tables.reserve(variants.size());
        for (const Variant& variant : variants)
            tables.push_back(add(variant));
        return buffer_.CreateVector(tables);
    }

    flatbuffers::Offset<Format::Picture> add(const Picture& picture) {
        const Format::Fit fit = toFormat(picture.fit);
        const Format::Size points(picture.points.width, picture.points.height);
        const Format::Insets caps = toFormat(picture.capInsets);
        const Format::Insets alignment = toFormat(picture.alignmentInsets);
        return Format::CreatePicture(buffer_, &fit, text(picture.language), blobs_.add(picture.bytes),
                                     picture.bytes->size(), picture.width, picture.height, &points,
                                     static_cast<std::uint8_t>(picture.resizing),
                                     picture.capInsets == Insets{} ? nullptr : &caps,
                                     picture.alignmentInsets == Insets{} ? nullptr : &alignment);
    }
    flatbuffers::Offset<Format::Color> add(const Color& color) {
        const Format::Fit fit = toFormat(color.fit);
        const auto& [first, second, third, alpha] = color.value.components;
        const Format::Components components(first, second, third, alpha);
        return Format::CreateColor(buffer_, &fit, text(color.language), static_cast<std::uint8_t>(color.value.space),
                                   &components);
    }
    flatbuffers::Offset<Format::Data> add(const Data& data) {
        const Format::Fit fit = toFormat(data.fit);
        return Format::CreateData(buffer_, &fit, text(data.language), blobs_.add(data.bytes), data.bytes->size(),
                                  text(data.typeIdentifier));
    }

    // Empty strings are omitted.
    flatbuffers::Offset<flatbuffers::String> text(const std::string& text) {
        return text.empty() ? 0 : buffer_.CreateSharedString(text);
    }

    flatbuffers::FlatBufferBuilder buffer_;
    std::vector<std::uint64_t> hashes_;
    std::vector<flatbuffers::Offset<Format::Asset>> assets_;
    BlobList blobs_;
};

} // namespace

std::vector<std::string_view> BuiltCatalog::pieces() const {
    static constexpr std::string_view zeros("\0\0\0\0\0\0\0\0\0\0\0\0\0\0\0", Format::alignment - 1);
    std::vector<std::string_view> pieces = {index};
    for (const Bytes& blob : blobs) {
        pieces.push_back(*blob);
        pieces.push_back(zeros.substr(0, Format::aligned(blob->size()) - blob->size()));
    }
    return pieces;
}

std::string BuiltCatalog::bytes() const {
    std::string all;
    for (const std::string_view piece : pieces())
        all.append(piece);
    return all;
}

Runtime::Result<BuiltCatalog> build(std::vector<Asset> assets) {
    std::ranges::sort(assets, {}, orderOf);
    if (const auto same = std::ranges::adjacent_find(assets, {}, orderOf); same != assets.end())
        return failure("two assets of one kind are named \"" + same->name + "\"");
    if (assets.size() > maxAssets)
        return failure("has more than " + std::to_string(maxAssets) + " assets");
    Writer writer;
    for (Asset& asset : assets)
        writer.add(asset);
    BuiltCatalog built = writer.finish();
    // Run the reader's checks, so that no catalog is written that it would reject.
    std::uint64_t total = 0;
    for (const std::string_view piece : built.pieces())
        total += piece.size();
    if (total > maxBytes)
        return failure("has more than " + std::to_string(maxBytes) + " bytes");
    const std::span index(reinterpret_cast<const std::uint8_t*>(built.index.data()), built.index.size());
    if (const auto size = indexBytes(index, total); !size)
        return failure(size.error().message);
    if (const auto checked = check(index, total); !checked)
        return failure(checked.error().message);
    return built;
}

} // namespace AssetCatalog
