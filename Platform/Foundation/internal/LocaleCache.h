// Foundation/internal/LocaleCache.h
// Caches expensive values by locale identifier; internal.
// Threads: any; lock-free.
// Ownership: cached values live until the process ends. Their number is limited: when the cache is full, values for
// further identifiers are created at each call, as they always are for very long identifiers.
#pragma once

#include "Runtime/internal/KeyedStore.h"
#include <cstddef>
#include <memory>
#include <string_view>
#include <utility>

namespace Foundation::detail {

// A pointer to a cached value, or to a value that is not cached, which the pointer owns.
template <class T> using Kept = std::shared_ptr<const T>;

template <class T> class LocaleCache {
public:
    // Constant-initialized: a static cache costs zeroed memory and no start-up code.
    constexpr LocaleCache() noexcept = default;

    // The value for `locale`, from the cache or from `make()`. Several threads may call `make()` for the same locale at
    // the same time; one of the values is kept.
    template <class Make> Kept<T> get(std::string_view locale, Make&& make) {
        if (const T* const known = values_.find(locale))
            return pointingTo(*known);
        if (locale.size() > maxIdentifierBytes)
            return std::make_shared<const T>(make());
        auto made = make();
        const T* const kept = values_.add(maxValues, locale, std::move(made)); // moves only if there is room
        // NOLINTNEXTLINE(bugprone-use-after-move): if `made` was moved from, `kept` is not null
        return kept != nullptr ? pointingTo(*kept) : std::make_shared<const T>(std::move(made));
    }

private:
    static constexpr std::size_t maxValues = 256;
    static constexpr std::size_t maxIdentifierBytes = 128;

    // A shared_ptr without ownership or reference count.
    static Kept<T> pointingTo(const T& kept) noexcept { return Kept<T>(std::shared_ptr<void>(), &kept); }

    Runtime::KeyedStore<T> values_;
};

} // namespace Foundation::detail
