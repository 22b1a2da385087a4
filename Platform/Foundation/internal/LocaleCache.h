// Foundation/internal/LocaleCache.h
// What is derived from a locale's identifier at some cost, kept for the identifiers that a process uses; internal.
// Threads: any; a read of what is kept takes no lock.
// Ownership: kept values live until the process ends. Their number is bounded: when a process has used very many
// identifiers, values of further ones are made for each call.
#pragma once

#include <array>
#include <atomic>
#include <cstddef>
#include <functional> // std::hash
#include <memory>
#include <string>
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
        std::unique_ptr<Entry> made;
        const std::size_t home = std::hash<std::string_view>()(locale);
        for (std::size_t probe = 0; probe < longestProbe && locale.size() <= longestKeptName; ++probe) {
            std::atomic<const Entry*>& slot = slots_[(home + probe) % slots_.size()];
            const Entry* entry = slot.load(std::memory_order_acquire);
            if (entry == nullptr) {
                if (!made)
                    made.reset(new Entry{std::string(locale), make()});
                if (slot.compare_exchange_strong(entry, made.get(), std::memory_order_acq_rel))
                    entry = made.release();
            }
            if (entry->locale == locale)
                return Kept<T>(std::shared_ptr<void>(), &entry->value); // owns nothing, counts nothing
        }
        return made ? std::make_shared<const T>(std::move(made->value)) : std::make_shared<const T>(make());
    }

private:
    struct Entry {
        std::string locale;
        T value;
    };
    static constexpr std::size_t longestProbe = 16;
    static constexpr std::size_t longestKeptName = 128;

    std::array<std::atomic<const Entry*>, 256> slots_{};
};

} // namespace Foundation::detail
