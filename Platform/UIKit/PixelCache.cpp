#include "UIKit/internal/PixelCache.h"

#include <utility>

namespace UIKit::detail {

// Locks the table and gives access to it.
class PixelCache::Access {
public:
    explicit Access(PixelCache& cache) : cache_(cache) {
        // A thread of the parent process was changing the table at the fork. The table may be inconsistent: leak it.
        if (cache_.lock_.lock())
            static_cast<void>(cache_.table_.release());
        try {
            if (!cache_.table_)
                cache_.table_ = std::make_unique<Table>();
        } catch (...) {
            cache_.lock_.unlock();
            throw;
        }
    }
    ~Access() { cache_.lock_.unlock(); }
    Access(const Access&) = delete;
    Access& operator=(const Access&) = delete;

    Pixels find(const Key& key) {
        const auto found = table().slots.find(key);
        return found == table().slots.end() ? nullptr : use(found->second, key);
    }

    Pixels add(const Key& key, const Pixels& pixels) {
        if (table().slots.size() >= table().nextSweep)
            sweep();
        Slot& slot = table().slots.try_emplace(key, Slot{{}, table().kept.end()}).first->second;
        if (Pixels others = use(slot, key))
            return others;
        slot.pixels = pixels;
        return use(slot, key);
    }

private:
    Table& table() noexcept { return *cache_.table_; }

    void sweep() {
        std::erase_if(table().slots, [](const auto& each) { return each.second.pixels.expired(); });
        table().nextSweep = table().slots.size() * 2 + 64; // sweeps take amortized constant time for each add()
    }

    // Returns the slot's pixels if they are alive, and marks them as most recently used.
    Pixels use(Slot& slot, const Key& key) {
        Pixels pixels = slot.pixels.lock();
        if (pixels == nullptr)
            return nullptr;
        std::list<Kept>& kept = table().kept;
        if (slot.kept != kept.end()) {
            kept.splice(kept.begin(), kept, slot.kept);
            return pixels;
        }
        if (pixels->pixels.size() <= cache_.maxBytes_) { // a larger one would only evict the others
            kept.push_front({key, pixels});
            table().keptBytes += pixels->pixels.size();
            slot.kept = kept.begin();
            evict();
        }
        return pixels;
    }

    void evict() {
        std::list<Kept>& kept = table().kept;
        while (table().keptBytes > cache_.maxBytes_) {
            table().keptBytes -= kept.back().pixels->pixels.size();
            table().slots.find(kept.back().key)->second.kept = kept.end();
            kept.pop_back();
        }
    }

    PixelCache& cache_;
};

Pixels PixelCache::find(const Key& key) {
    return Access(*this).find(key);
}

Pixels PixelCache::add(const Key& key, const Pixels& pixels) {
    return Access(*this).add(key, pixels);
}

} // namespace UIKit::detail
