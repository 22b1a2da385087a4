#include "AssetCatalog/internal/Check.h"

#include "AssetCatalog/internal/Catalog.h" // limits
#include <algorithm>
#include <cmath>
#include <string>

namespace AssetCatalog {

namespace {

Runtime::Error fault(std::string message) {
    return {.message = std::move(message), .file = {}};
}
Runtime::Error damaged(std::string_view what) {
    return fault(std::string("is no sound catalog: ").append(what));
}
Runtime::Error damagedAsset(const Format::Asset& asset, std::string_view what) {
    const std::string_view name = asset.name()->string_view().substr(0, maxNameBytes);
    return damaged(std::string("\"").append(name).append("\" ").append(what));
}

// The container's verifier leaves open whether the elements of a vector lie where their type may.
template <class Vector> bool mayBeRead(const Vector& vector, std::size_t alignment) {
    return reinterpret_cast<std::uintptr_t>(vector.Data()) % alignment == 0;
}

template <class Enumeration> bool within(std::uint8_t value, Enumeration last) {
    return value <= static_cast<std::uint8_t>(last);
}

bool isSound(const Format::Fit& fit) {
    return within(fit.appearance(), Appearance::dark) && within(fit.contrast(), Contrast::high) &&
           within(fit.direction(), Direction::rightToLeft);
}

class AssetCheck {
public:
    AssetCheck(const Format::Asset& asset, std::uint64_t blobBytes) : asset_(asset), blobBytes_(blobBytes) {}

    // What does not hold, or null.
    const char* fault() const {
        if (asset_.name()->size() == 0 || asset_.name()->size() > maxNameBytes)
            return "has a name that is empty or too long";
        switch (static_cast<Kind>(asset_.kind())) {
        case Kind::image:
            return all(asset_.pictures(), 8, [this](const Format::Picture& picture) { return fault(picture); });
        case Kind::color:
            return all(asset_.colors(), 8, [](const Format::Color& color) { return fault(color); });
        case Kind::data:
            return all(asset_.data(), 4, [this](const Format::Data& data) { return fault(data); });
        }
        return "is of an unknown kind";
    }

private:
    template <class Vector, class Fault>
    static const char* all(const Vector* variants, std::size_t alignment, Fault fault) {
        if (variants == nullptr || variants->size() == 0 || variants->size() > maxVariants)
            return "has no variant or too many";
        if (!mayBeRead(*variants, alignment))
            return "has misplaced variants";
        for (const auto* variant : *variants)
            if (const char* found = fault(*variant))
                return found;
        return nullptr;
    }

    bool holds(std::uint64_t offset, std::uint64_t size) const {
        return offset <= blobBytes_ && size <= blobBytes_ - offset && offset % Format::alignment == 0;
    }
    const char* fault(const Format::Picture& picture) const {
        if (!isSound(picture.fit()) || !within(picture.encoding(), Encoding::jpeg))
            return "has a picture of an unknown sort";
        if (picture.size() == 0 || picture.width() == 0 || picture.height() == 0 ||
            std::uint64_t{picture.width()} * picture.height() > maxPixels)
            return "has a picture of nothing or of too many pixels";
        return holds(picture.offset(), picture.size()) ? nullptr : "has a picture outside of the catalog";
    }
    static const char* fault(const Format::Color& color) {
        if (!isSound(color.fit()) || !within(color.space(), ColorSpace::gray))
            return "has a colour of an unknown sort";
        const bool sound = std::isfinite(color.first()) && std::isfinite(color.second()) &&
                           std::isfinite(color.third()) && color.alpha() >= 0 && color.alpha() <= 1;
        return sound ? nullptr : "has a colour with impossible components";
    }
    const char* fault(const Format::Data& data) const {
        if (!isSound(*data.fit()))
            return "has data of an unknown sort";
        return holds(data.offset(), data.size()) ? nullptr : "has data outside of the catalog";
    }

    const Format::Asset& asset_;
    std::uint64_t blobBytes_;
};

// Names first: ascending hashes that fit their names mean that no asset stands there twice.
Runtime::Result<void> checkAssets(const Format::Catalog& index) {
    const auto& hashes = *index.hashes();
    const auto& assets = *index.assets();
    if (!mayBeRead(hashes, 8) || hashes.size() != assets.size() || assets.size() > maxAssets)
        return damaged("its order does not fit its assets");
    for (flatbuffers::uoffset_t i = 0; i < assets.size(); ++i) {
        const Format::Asset& asset = *assets[i];
        if (const char* fault = AssetCheck(asset, index.blob_bytes()).fault())
            return damagedAsset(asset, fault);
        if ((i != 0 && hashes[i - 1] >= hashes[i]) ||
            hashes[i] != Format::hashOf(static_cast<Kind>(asset.kind()), asset.name()->string_view()))
            return damagedAsset(asset, "is not in its place");
    }
    return {};
}

} // namespace

Runtime::Result<std::size_t> indexBytes(std::span<const std::uint8_t> head, std::uint64_t total) {
    if (head.size() < headBytes || !Format::SizePrefixedCatalogBufferHasIdentifier(head.data()))
        return fault("is not a compiled catalog");
    const std::size_t size =
        Format::aligned(flatbuffers::GetPrefixedSize(head.data()) + sizeof(flatbuffers::uoffset_t));
    if (size > maxIndexBytes || size > total)
        return damaged("its index is cut off or too large");
    return size;
}

Runtime::Result<const Format::Catalog*> check(std::span<const std::uint8_t> bytes, std::uint64_t total) {
    const flatbuffers::Verifier::Options limits{.max_depth = 3, .max_tables = maxAssets * 2};
    flatbuffers::Verifier verifier(bytes.data(),
                                   flatbuffers::GetPrefixedSize(bytes.data()) + sizeof(flatbuffers::uoffset_t), limits);
    if (!Format::VerifySizePrefixedCatalogBuffer(verifier))
        return damaged("its index is damaged");
    const Format::Catalog& index = *Format::GetSizePrefixedCatalog(bytes.data());
    if (index.version() != Format::version)
        return fault("is a catalog of version " + std::to_string(index.version()) + "; this program reads version " +
                     std::to_string(Format::version));
    if (index.blob_bytes() != total - bytes.size())
        return damaged("it is cut off");
    if (auto sound = checkAssets(index); !sound)
        return std::move(sound.error());
    return &index;
}

} // namespace AssetCatalog
