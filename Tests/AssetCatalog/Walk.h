// Tests/AssetCatalog/Walk.h
// Reads a whole catalog, for tests and fuzzers.
#pragma once

#include "AssetCatalog/internal/Catalog.h"
#include <algorithm>
#include <array>
#include <cmath>
#include <cstdlib>
#include <memory>
#include <new>
#include <span>
#include <string>
#include <string_view>

namespace Walk {

// Bytes that fill their allocation exactly, so that sanitizers detect reads past the end; aligned like catalogs.
class ExactAllocation {
public:
    explicit ExactAllocation(std::string_view bytes)
        : size_(bytes.size()), bytes_(static_cast<std::uint8_t*>(::operator new (bytes.size(), std::align_val_t{16}))) {
        std::copy(bytes.begin(), bytes.end(), bytes_.get());
    }
    std::span<const std::uint8_t> span() const { return {bytes_.get(), size_}; }

private:
    struct Free {
        void operator()(std::uint8_t* bytes) const { ::operator delete (bytes, std::align_val_t{16}); }
    };
    std::size_t size_;
    std::unique_ptr<std::uint8_t, Free> bytes_;
};

// Reads everything in a catalog; the returned sum prevents the compiler from removing the reads. Stops the process if
// the catalog contradicts itself.
inline unsigned long long everything(const AssetCatalog::Catalog& catalog) {
    unsigned long long sum = 0;
    const auto read = [&](const AssetCatalog::Blob& blob) {
        const auto bytes = blob.read();
        if (!bytes)
            std::abort();
        for (const std::uint8_t byte : *bytes)
            sum += byte;
    };
    for (std::size_t i = 0; i < catalog.size(); ++i) {
        const AssetCatalog::Entry entry = catalog[i];
        if (catalog.find(entry.kind(), entry.name()) != i || entry.best({}) >= entry.variants())
            std::abort();
        sum += entry.catalog().size() + static_cast<unsigned>(entry.rendering());
        for (std::size_t variant = 0; variant < entry.variants(); ++variant) {
            const std::array languages = {std::string(entry.language(variant))};
            if (entry.best(entry.fit(variant), languages) > variant) // best() gives the first exact match
                std::abort();
            if (entry.kind() == AssetCatalog::Kind::image) {
                const AssetCatalog::PictureView picture = entry.picture(variant);
                if (!(picture.points.width > 0) ||
                    !std::isfinite(picture.capInsets.top + picture.alignmentInsets.right))
                    std::abort();
                read(picture.blob);
            } else if (entry.kind() == AssetCatalog::Kind::color)
                sum += entry.color(variant).components[3] > 0 ? 1U : 0U;
            else {
                read(entry.data(variant).blob);
                sum += entry.data(variant).typeIdentifier.size();
            }
        }
    }
    return sum;
}

} // namespace Walk
