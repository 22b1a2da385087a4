#include "AssetCatalog/internal/Check.h"

#include "AssetCatalog/internal/Catalog.h" // limits
#include <algorithm>
#include <cmath>
#include <string>

namespace AssetCatalog {

namespace {

Runtime::Error failure(std::string message) {
    return {.message = std::move(message), .file = {}};
}
Runtime::Error damaged(std::string_view what) {
    return failure(std::string("is a damaged catalog: ").append(what));
}
Runtime::Error damagedAsset(const Format::Asset& asset, std::string_view what) {
    const std::string_view name = asset.name()->string_view().substr(0, maxNameBytes);
    return damaged(std::string("\"").append(name).append("\" ").append(what));
}

template <class Enumeration> bool within(std::uint8_t value, Enumeration last) {
    return value <= static_cast<std::uint8_t>(last);
}
bool isSound(const Format::Fit& fit) {
    return within(fit.appearance(), Appearance::dark) && within(fit.contrast(), Contrast::high) &&
           within(fit.direction(), Direction::rightToLeft);
}
bool isShort(const flatbuffers::String* text) {
    return text == nullptr || text->size() <= maxOtherTextBytes;
}
bool isSound(const Format::Insets* insets) {
    return insets == nullptr || (std::isfinite(insets->top()) && std::isfinite(insets->left()) &&
                                 std::isfinite(insets->bottom()) && std::isfinite(insets->right()));
}

class AssetCheck {
public:
    AssetCheck(const Format::Asset& asset, std::uint64_t blobBytes) : asset_(asset), blobBytes_(blobBytes) {}

    // What is wrong with the asset, or null.
    const char* fault() const {
        if (asset_.name()->size() == 0 || asset_.name()->size() > maxNameBytes)
            return "has an empty or too long name";
        if (!isShort(asset_.catalog()))
            return "is in a catalog whose name is too long";
        if (!within(asset_.rendering(), Rendering::asTemplate))
            return "has an unknown rendering mode";
        switch (static_cast<Kind>(asset_.kind())) {
        case Kind::image:
            return all(asset_.pictures());
        case Kind::color:
            return all(asset_.colors());
        case Kind::data:
            return all(asset_.data());
        }
        return "is of an unknown kind";
    }

private:
    template <class Vector> const char* all(const Vector* variants) const {
        if (variants == nullptr || variants->size() == 0 || variants->size() > maxVariants)
            return "has no variants or too many";
        for (const auto* variant : *variants) {
            if (!isSound(*variant->fit()) || !isShort(variant->language()))
                return "has a variant with invalid traits or language";
            if (const char* found = fault(*variant))
                return found;
        }
        return nullptr;
    }

    bool holds(std::uint64_t offset, std::uint64_t size) const {
        return offset <= blobBytes_ && size <= blobBytes_ - offset && offset % Format::alignment == 0;
    }
    const char* fault(const Format::Picture& picture) const {
        const auto isPositive = [](double points) { return std::isfinite(points) && points > 0; };
        if (picture.size() == 0 || picture.width() == 0 || picture.height() == 0 ||
            std::uint64_t{picture.width()} * picture.height() > maxPixels)
            return "has a picture with no pixels or too many";
        if (!isPositive(picture.points()->width()) || !isPositive(picture.points()->height()))
            return "has a picture with an invalid size in points";
        if (!within(picture.resizing(), Resizing::tile) || !isSound(picture.cap_insets()) ||
            !isSound(picture.alignment_insets()))
            return "has a picture with invalid insets or resizing mode";
        return holds(picture.offset(), picture.size()) ? nullptr : "has a picture at an invalid place";
    }
    static const char* fault(const Format::Color& color) {
        if (!within(color.space(), ColorSpace::gray))
            return "has a colour in an unknown colour space";
        const Format::Components& components = *color.components();
        const bool isValid = std::isfinite(components.first()) && std::isfinite(components.second()) &&
                             std::isfinite(components.third()) && components.alpha() >= 0 && components.alpha() <= 1;
        return isValid ? nullptr : "has a colour with invalid components";
    }
    const char* fault(const Format::Data& data) const {
        if (!isShort(data.type()))
            return "has data whose type identifier is too long";
        return holds(data.offset(), data.size()) ? nullptr : "has data at an invalid place";
    }

    const Format::Asset& asset_;
    std::uint64_t blobBytes_;
};

// Whether the assets `i - 1` and `i` are ordered by hash, kind and name, and are not the same.
bool areInOrder(const Format::Catalog& index, flatbuffers::uoffset_t i) {
    const std::uint64_t before = index.hashes()->Get(i - 1), hash = index.hashes()->Get(i);
    return before < hash ||
           (before == hash && Format::nameOf(*index.assets()->Get(i - 1)) < Format::nameOf(*index.assets()->Get(i)));
}

// Assets in order, whose hashes match their names, guarantee that none occurs twice. `indexBytes` limits the total size
// of the names, and so the time to hash them: the names of damaged entries could overlap.
Runtime::Result<void> checkAssets(const Format::Catalog& index, std::size_t indexBytes) {
    const auto& hashes = *index.hashes();
    const auto& assets = *index.assets();
    // The FlatBuffers verifier does not check the alignment of vector elements.
    const bool isAligned = reinterpret_cast<std::uintptr_t>(hashes.Data()) % alignof(std::uint64_t) == 0;
    if (!isAligned || hashes.size() != assets.size())
        return damaged("its list of hashes does not fit its assets");
    if (assets.size() > maxAssets)
        return damaged("it has too many assets");
    std::size_t nameBytes = 0;
    for (flatbuffers::uoffset_t i = 0; i < assets.size(); ++i) {
        const Format::Asset& asset = *assets[i];
        if (const char* fault = AssetCheck(asset, index.blob_bytes()).fault())
            return damagedAsset(asset, fault);
        const auto [kind, name] = Format::nameOf(asset);
        if (hashes[i] != Format::hashOf(kind, name) || (i != 0 && !areInOrder(index, i)))
            return damagedAsset(asset, "has a wrong hash or is out of order");
        nameBytes += asset.name()->size();
        if (nameBytes > indexBytes)
            return damaged("its names are longer than its index");
    }
    return {};
}

} // namespace

Runtime::Result<std::size_t> indexBytes(std::span<const std::uint8_t> head, std::uint64_t total) {
    if (head.size() < headBytes || !Format::SizePrefixedCatalogBufferHasIdentifier(head.data()))
        return failure("is not a compiled catalog");
    const std::size_t size =
        Format::aligned(flatbuffers::GetPrefixedSize(head.data()) + sizeof(flatbuffers::uoffset_t));
    if (size > maxIndexBytes || size > total)
        return damaged("its index is truncated or too large");
    return size;
}

Runtime::Result<const Format::Catalog*> check(std::span<const std::uint8_t> bytes, std::uint64_t total) {
    // Each table that is not shared takes at least twelve bytes, with the reference to it. The limit on tables rejects
    // files in which many assets share one list of variants, which would take quadratic time; our builder never shares
    // lists.
    const flatbuffers::Verifier::Options limits{.max_depth = 3, // catalog, asset, variant
                                                .max_tables =
                                                    static_cast<flatbuffers::uoffset_t>(bytes.size() / 12 + 1)};
    flatbuffers::Verifier verifier(bytes.data(),
                                   flatbuffers::GetPrefixedSize(bytes.data()) + sizeof(flatbuffers::uoffset_t), limits);
    if (!Format::VerifySizePrefixedCatalogBuffer(verifier))
        return damaged("its index is damaged or of another version");
    const Format::Catalog& index = *Format::GetSizePrefixedCatalog(bytes.data());
    if (index.version() != Format::version)
        return failure("is a catalog of version " + std::to_string(index.version()) + "; this program reads version " +
                       std::to_string(Format::version));
    if (index.blob_bytes() != total - bytes.size())
        return damaged("its size is not the one that its index gives");
    if (auto sound = checkAssets(index, bytes.size()); !sound)
        return std::move(sound.error());
    return &index;
}

} // namespace AssetCatalog
