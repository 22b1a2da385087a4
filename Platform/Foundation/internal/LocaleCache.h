// Foundation/internal/LocaleCache.h
// What is derived from a locale's identifier at some cost, kept for the identifiers that a process uses; internal.
// Threads: any; nothing takes a lock.
// Ownership: kept values live until the process ends. Their number is bounded: when a process has used very many
// identifiers, values of further ones are made for each call.
#pragma once

#include "Runtime/internal/KeyedStore.h"
#include <cstddef>
#include <memory>
#include <string_view>
#include <utility>

namespace Foundation::detail {

// A value that is either kept for good, and then only pointed to, or the holder's own.
template <class T> using Kept = std::shared_ptr<const T>;

template <class T> class LocaleCache {
public:
    // Constant: a static cache is zeroed memory.
    constexpr LocaleCache() noexcept = default;

    // The value of `locale`, from `make()` unless it is kept. Threads that need a value at the same time may all make
    // it; one of the values is kept.
    template <class Make> Kept<T> get(std::string_view locale, Make&& make) {
        if (const T* const known = values_.find(locale))
            return pointingTo(*known);
        if (locale.size() > longestKeptName)
            return std::make_shared<const T>(make());
        auto made = make();
        const T* const kept = values_.add(mostKept, locale, std::move(made)); // takes it only where it has room
        return kept != nullptr ? pointingTo(*kept) : std::make_shared<const T>(std::move(made));
    }

private:
    static constexpr std::size_t mostKept = 256;
    static constexpr std::size_t longestKeptName = 128;

    // Owns nothing, counts nothing.
    static Kept<T> pointingTo(const T& kept) noexcept { return Kept<T>(std::shared_ptr<void>(), &kept); }

    Runtime::KeyedStore<T> values_;
};

} // namespace Foundation::detail
