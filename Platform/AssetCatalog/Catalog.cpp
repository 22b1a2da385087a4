#include "AssetCatalog/internal/Catalog.h"

#include "AssetCatalog/internal/Check.h"
#include "AssetCatalog/internal/Fit.h"
#include <algorithm>
#include <array>
#include <utility>

namespace AssetCatalog {

namespace {

using Index = flatbuffers::uoffset_t;

// The casts are safe: check() has validated the enumerators.
Fit fitOf(const Format::Fit& fit) noexcept {
    return {static_cast<Appearance>(fit.appearance()), static_cast<Contrast>(fit.contrast()),
            static_cast<Direction>(fit.direction()), fit.scale()};
}

Insets insetsOf(const Format::Insets* insets) noexcept {
    return insets == nullptr ? Insets{} : Insets{insets->top(), insets->left(), insets->bottom(), insets->right()};
}

std::string_view textOf(const flatbuffers::String* text) noexcept {
    return text == nullptr ? std::string_view() : text->string_view();
}

// Calls `use` with the variant, whose type depends on the kind.
template <class Use> auto withVariant(const Format::Asset& asset, Kind kind, std::size_t variant, Use use) noexcept {
    const auto index = static_cast<Index>(variant);
    switch (kind) {
    case Kind::image:
        return use(*asset.pictures()->Get(index));
    case Kind::color:
        return use(*asset.colors()->Get(index));
    case Kind::data:
        break;
    }
    return use(*asset.data()->Get(index));
}

} // namespace

Kind Entry::kind() const noexcept {
    return static_cast<Kind>(asset_->kind());
}
std::string_view Entry::catalog() const noexcept {
    return textOf(asset_->catalog());
}
std::string_view Entry::name() const noexcept {
    return textOf(asset_->name());
}
Rendering Entry::rendering() const noexcept {
    return static_cast<Rendering>(asset_->rendering());
}

std::size_t Entry::variants() const noexcept {
    switch (kind()) {
    case Kind::image:
        return asset_->pictures()->size();
    case Kind::color:
        return asset_->colors()->size();
    case Kind::data:
        break;
    }
    return asset_->data()->size();
}

Fit Entry::fit(std::size_t variant) const noexcept {
    return withVariant(*asset_, kind(), variant, [](const auto& found) { return fitOf(*found.fit()); });
}

std::string_view Entry::language(std::size_t variant) const noexcept {
    return withVariant(*asset_, kind(), variant, [](const auto& found) { return textOf(found.language()); });
}

bool Entry::isLocalized() const noexcept {
    for (std::size_t i = 0; i < variants(); ++i)
        if (!language(i).empty())
            return true;
    return false;
}

std::size_t Entry::best(Fit wanted, std::span<const std::string> languages) const noexcept {
    const auto distanceOf = [&](std::size_t variant) {
        return std::pair(languageDistance(language(variant), languages), distance(fit(variant), wanted));
    };
    std::size_t best = 0;
    for (std::size_t i = 1; i < variants(); ++i)
        if (distanceOf(i) < distanceOf(best))
            best = i;
    return best;
}

PictureView Entry::picture(std::size_t variant) const noexcept {
    const Format::Picture& found = *asset_->pictures()->Get(static_cast<Index>(variant));
    return {.fit = fitOf(*found.fit()),
            .width = found.width(),
            .height = found.height(),
            .points = {found.points()->width(), found.points()->height()},
            .resizing = static_cast<Resizing>(found.resizing()),
            .capInsets = insetsOf(found.cap_insets()),
            .alignmentInsets = insetsOf(found.alignment_insets()),
            .blob = {blobs_, found.offset(), found.size()}};
}

ColorValue Entry::color(std::size_t variant) const noexcept {
    const Format::Color& found = *asset_->colors()->Get(static_cast<Index>(variant));
    const Format::Components& components = *found.components();
    return {static_cast<ColorSpace>(found.space()),
            {components.first(), components.second(), components.third(), components.alpha()}};
}

DataView Entry::data(std::size_t variant) const noexcept {
    const Format::Data& found = *asset_->data()->Get(static_cast<Index>(variant));
    return {fitOf(*found.fit()), textOf(found.type()), {blobs_, found.offset(), found.size()}};
}

Runtime::Result<Catalog> Catalog::open(const std::string& path, std::string_view bundle) {
    auto file = Runtime::OpenFile::open(path, maxBytes, bundle);
    if (!file)
        return std::move(file.error());
    const auto failure = [&](Runtime::Error& error) { return file->error(std::move(error.message)); };
    std::array<std::uint8_t, headBytes> head{};
    const auto headRead = file->read(head.data(), head.size(), 0);
    if (!headRead)
        return headRead.error();
    auto size = indexBytes(std::span(head).first(*headRead), file->size());
    if (!size)
        return failure(size.error());
    auto bytes = std::make_unique<std::uint8_t[]>(*size);
    const auto filled = file->read(bytes.get(), *size, 0);
    if (!filled)
        return filled.error();
    // The file may have changed between the two reads: the size must still match the allocated memory.
    auto sameSize = indexBytes({bytes.get(), *filled}, *filled);
    if (!sameSize || *sameSize != *size)
        return file->error("was changed while it was read");
    auto index = check({bytes.get(), *size}, file->size());
    if (!index)
        return failure(index.error());
    return Catalog(std::move(bytes), *index, std::make_unique<Blobs>(std::move(*file), *size));
}

Runtime::Result<Catalog> Catalog::read(std::span<const std::uint8_t> bytes) {
    auto size = indexBytes(bytes, bytes.size());
    if (!size)
        return std::move(size.error());
    auto index = check(bytes.first(*size), bytes.size());
    if (!index)
        return std::move(index.error());
    return Catalog(nullptr, *index, std::make_unique<Blobs>(bytes.subspan(*size)));
}

std::optional<std::size_t> Catalog::find(Kind kind, std::string_view name) const noexcept {
    const auto& hashes = *index_->hashes();
    const auto& assets = *index_->assets();
    const auto [first, last] = std::equal_range(hashes.begin(), hashes.end(), Format::hashOf(kind, name));
    const auto assetOf = [&](auto hash) { return assets.begin() + static_cast<Index>(hash - hashes.begin()); };
    const Format::AssetName wanted(kind, name);
    const auto precedes = [](const Format::Asset* asset, const Format::AssetName& other) {
        return Format::nameOf(*asset) < other;
    };
    const auto found = std::lower_bound(assetOf(first), assetOf(last), wanted, precedes);
    return found != assetOf(last) && Format::nameOf(**found) == wanted
               ? std::optional(static_cast<std::size_t>(found - assets.begin()))
               : std::nullopt;
}

std::size_t Catalog::size() const noexcept {
    return index_->assets()->size();
}

Entry Catalog::operator[](std::size_t index) const noexcept {
    return {index_->assets()->Get(static_cast<Index>(index)), blobs_.get()};
}

} // namespace AssetCatalog
