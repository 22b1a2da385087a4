#include "UIKit/NSDataAsset.h"

#include "UIKit/internal/BundleCatalog.h"
#include <atomic>
#include <memory>
#include <vector>

namespace UIKit {

namespace {

// What was read of catalogs. Kept until the process ends, as the catalogs are: the span that an asset gives out
// outlives the asset. Data assets are few, so a list suffices, and is read without a lock.
struct Node {
    AssetCatalog::Blob blob;
    std::vector<std::uint8_t> bytes;
    const Node* next = nullptr;
};
constinit std::atomic<const Node*> nodes{nullptr};

const Node* search(const Node* first, const AssetCatalog::Blob& blob) noexcept {
    while (first != nullptr && first->blob != blob)
        first = first->next;
    return first;
}

// The bytes of the blob, or null when they cannot be read.
const Node* bytesOf(const AssetCatalog::Blob& blob) {
    if (const Node* known = search(nodes.load(std::memory_order_acquire), blob))
        return known;
    auto read = blob.read();
    if (!read)
        return nullptr;
    auto made = std::unique_ptr<Node>(new Node{blob, *std::move(read)});
    made->next = nodes.load(std::memory_order_acquire);
    do {
        // Another thread may have been first meanwhile: then its bytes are everybody's.
        if (const Node* others = search(made->next, blob))
            return others;
    } while (!nodes.compare_exchange_weak(made->next, made.get(), std::memory_order_acq_rel));
    return made.release();
}

} // namespace

std::optional<NSDataAsset> NSDataAsset::assetWithName(std::string_view name, const Foundation::NSBundle& bundle) {
    const auto found = detail::findAsset(AssetCatalog::Kind::data, name, bundle);
    if (!found)
        return std::nullopt;
    const AssetCatalog::Entry entry = (*found->catalog)[found->index];
    const auto data = entry.data(entry.best(detail::wanted(UITraitCollection::current())));
    const Node* kept = bytesOf(data.blob);
    return kept == nullptr ? std::nullopt : std::optional(NSDataAsset(entry.name(), data.typeIdentifier, kept->bytes));
}

} // namespace UIKit
