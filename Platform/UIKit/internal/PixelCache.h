// UIKit/internal/PixelCache.h
// A cache of decoded pixels, shared by all images of the same picture; internal.
// Threads: any; the lock is held only while the table is used, never while a picture is decoded. A child process that
// was forked while the lock was held starts with an empty cache.
#pragma once

#include "AssetCatalog/internal/Blobs.h"
#include "Pictures/Bitmap.h"
#include "Runtime/internal/ForkLock.h"
#include <cstddef>
#include <cstdint>
#include <list>
#include <map>
#include <memory>

namespace UIKit::detail {

using Pixels = std::shared_ptr<const Pictures::Bitmap>;

class PixelCache {
public:
    using Key = AssetCatalog::Blob; // of the encoded picture

    // Keeps the most recently used pictures, up to `maxBytes` of pixels in total; others live as long as a caller holds
    // them.
    explicit PixelCache(std::size_t maxBytes) noexcept : maxBytes_(maxBytes) {}

    // The pixels of a picture, or null.
    Pixels find(const Key& key);
    // Adds the pixels and returns them, or those that another thread added meanwhile.
    Pixels add(const Key& key, const Pixels& pixels);

private:
    struct Kept {
        Key key;
        Pixels pixels;
    };
    struct Slot {
        std::weak_ptr<const Pictures::Bitmap> pixels; // expired when neither a caller nor `kept` has them
        std::list<Kept>::iterator kept;               // or the end of the list
    };

    struct Table {
        std::list<Kept> kept; // most recently used first
        std::size_t keptBytes = 0;
        std::map<Key, Slot> slots;
        std::size_t nextSweep = 64; // when there are this many slots, expired ones are removed
    };
    class Access;

    const std::size_t maxBytes_;
    Runtime::ForkLock lock_;
    std::unique_ptr<Table> table_; // null before its first use
};

} // namespace UIKit::detail
