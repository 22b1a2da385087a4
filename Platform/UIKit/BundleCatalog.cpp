#include "UIKit/internal/BundleCatalog.h"

#include <algorithm>
#include <atomic>
#include <cmath>
#include <memory>
#include <utility>

namespace UIKit::detail {

namespace {

// Bundles are as immortal as these nodes, and few: a list suffices, and is read without a lock.
struct Node {
    const Foundation::NSBundle* bundle;
    std::optional<AssetCatalog::Catalog> catalog;
    const Node* next = nullptr;
};
constinit std::atomic<const Node*> nodes{nullptr};

const Node* search(const Node* first, const Foundation::NSBundle& bundle) noexcept {
    while (first != nullptr && first->bundle != &bundle)
        first = first->next;
    return first;
}

// Null when the catalog cannot be opened for the moment.
const Node* openFor(const Foundation::NSBundle& bundle) {
    auto made = std::make_unique<Node>();
    made->bundle = &bundle;
    if (auto opened = AssetCatalog::Catalog::open(bundle.bundlePath() + "/" + std::string(AssetCatalog::fileName)))
        made->catalog.emplace(std::move(*opened));
    else if (opened.error().isPassing())
        return nullptr;
    made->next = nodes.load(std::memory_order_acquire);
    do {
        // Another thread may have been first meanwhile: then its catalog is everybody's.
        if (const Node* others = search(made->next, bundle))
            return others;
    } while (!nodes.compare_exchange_weak(made->next, made.get(), std::memory_order_acq_rel));
    return made.release();
}

} // namespace

std::optional<Found> findAsset(AssetCatalog::Kind kind, std::string_view name, const Foundation::NSBundle& bundle) {
    const Node* known = search(nodes.load(std::memory_order_acquire), bundle);
    const Node* node = known != nullptr ? known : openFor(bundle);
    if (node == nullptr || !node->catalog)
        return std::nullopt;
    const auto index = node->catalog->find(kind, name);
    return index ? std::optional(Found{&*node->catalog, *index}) : std::nullopt;
}

AssetCatalog::Fit wanted(const UITraitCollection& traits) noexcept {
    using namespace AssetCatalog;
    const double scale = traits.displayScale > 0 ? std::min(std::ceil(traits.displayScale), 255.0) : 1;
    return {static_cast<Appearance>(traits.userInterfaceStyle),
            traits.accessibilityContrast == AccessibilityContrast::high ? Contrast::high : Contrast::any,
            static_cast<Direction>(traits.layoutDirection), static_cast<std::uint8_t>(scale)};
}

} // namespace UIKit::detail
