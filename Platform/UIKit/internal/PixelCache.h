// UIKit/internal/PixelCache.h
// Decoded pixels, shared by all images of the same picture; internal.
// Threads: any; the lock is held while the table is read or changed, never while a picture is decoded. A child process
// that was forked while the lock was held begins with an empty cache.
#pragma once

#include "AssetCatalog/internal/Blobs.h"
#include "Pictures/Bitmap.h"
#include "Runtime/internal/ForkLock.h"
#include <cstddef>
#include <cstdint>
#include <list>
#include <map>
#include <memory>
#include <span>

namespace UIKit::detail {

using Pixels = std::shared_ptr<const Pictures::Bitmap>;

class PixelCache {
public:
    using Key = AssetCatalog::Blob; // of the encoded picture

    // Keeps the most recently used pictures up to `maxBytes` of pixels together; others live as long as a caller holds
    // them.
    explicit PixelCache(std::size_t maxBytes) noexcept : maxBytes_(maxBytes) {}

    // The pixels of the picture whose encoded bytes are at `key`, or null.
    Pixels find(const Key& key);
    // Adds the pixels and returns them, or those that another thread has added meanwhile.
    Pixels add(const Key& key, const Pixels& pixels);

private:
    struct Kept {
        Key key;
        Pixels pixels;
    };
    struct Slot {
        std::weak_ptr<const Pictures::Bitmap> pixels; // alive as long as a caller holds them
        std::list<Kept>::iterator kept;               // or the list's end
    };

    struct Table {
        std::list<Kept> kept; // the last used first
        std::size_t keptBytes = 0;
        std::map<Key, Slot> slots;
        std::size_t nextSweep = 64; // number of slots at which those without pixels are removed
    };
    class Access;

    const std::size_t maxBytes_;
    Runtime::ForkLock lock_;
    std::unique_ptr<Table> table_; // null before its first use
};

} // namespace UIKit::detail
