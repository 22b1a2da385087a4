#include "UIKit/internal/PixelCache.h"

namespace UIKit::detail {

Pixels PixelCache::find(const Key& key) {
    const std::lock_guard guard(lock_);
    const auto found = slots_.find(key);
    return found == slots_.end() ? nullptr : use(found->second, key);
}

Pixels PixelCache::add(const Key& key, const Pixels& pixels) {
    const std::lock_guard guard(lock_);
    if (slots_.size() >= nextSweep_) {
        std::erase_if(slots_, [](const auto& each) { return each.second.pixels.expired(); });
        nextSweep_ = slots_.size() * 2 + 64;
    }
    Slot& slot = slots_.try_emplace(key, Slot{{}, kept_.end()}).first->second;
    if (Pixels others = use(slot, key))
        return others;
    slot.pixels = pixels;
    return use(slot, key);
}

// The slot's pixels, if they are alive, as the last used.
Pixels PixelCache::use(Slot& slot, const Key& key) {
    Pixels pixels = slot.pixels.lock();
    if (pixels == nullptr)
        return nullptr;
    if (slot.kept != kept_.end()) {
        kept_.splice(kept_.begin(), kept_, slot.kept);
        return pixels;
    }
    if (pixels->pixels.size() <= maxBytes_) { // a larger one would only drive the others out
        kept_.push_front({key, pixels});
        keptBytes_ += pixels->pixels.size();
        slot.kept = kept_.begin();
        letGo();
    }
    return pixels;
}

void PixelCache::letGo() {
    while (keptBytes_ > maxBytes_) {
        keptBytes_ -= kept_.back().pixels->pixels.size();
        slots_.find(kept_.back().key)->second.kept = kept_.end();
        kept_.pop_back();
    }
}

} // namespace UIKit::detail
