// StringTables/internal/Index.h
// A hash index from keys to entries. Open addressing; each slot holds part of the key's hash beside the entry's number,
// so that most lookups compare a single key. Threads: immutable once built. Ownership: holds numbers only; the caller
// owns the entries.
#pragma once

#include "Runtime/internal/Hash.h"
#include "StringTables/internal/Table.h"
#include <bit>

namespace StringTables::internal {

class Index {
public:
    // Adds the entries in order. For a repeated key, `replace(entry, later)` merges the later entry into the earlier
    // one, and the later one is removed.
    template <class Replace> void build(std::vector<Entry>& entries, Replace&& replace);

    // The number of the key's entry, or `none`.
    static constexpr std::size_t none = ~std::size_t{0};
    [[nodiscard]] std::size_t find(std::string_view key, std::span<const Entry> entries) const noexcept;

private:
    // A slot holds the upper half of the key's hash and, in the lower half, the entry's number plus one; 0 means free.
    static constexpr std::uint64_t tagBits = 0xFFFFFFFF00000000;
    static std::size_t entryOf(std::uint64_t slot) noexcept { return (slot & ~tagBits) - 1; } // `none` for a free slot

    std::uint64_t hash(std::string_view key) const noexcept { return Runtime::hashBytes(key, seed_); }
    std::uint64_t& slotOf(std::uint64_t hash, std::string_view key, std::span<const Entry> entries) const noexcept;

    std::unique_ptr<std::uint64_t[]> slots_;
    std::uint64_t mask_ = 0;
    std::uint64_t seed_ = 0;
};

inline std::uint64_t& Index::slotOf(std::uint64_t hash, std::string_view key,
                                    std::span<const Entry> entries) const noexcept {
    for (std::uint64_t at = hash & mask_;; at = (at + 1) & mask_) {
        std::uint64_t& slot = slots_[at];
        if (slot == 0 || (((slot ^ hash) & tagBits) == 0 && entries[entryOf(slot)].key == key))
            return slot;
    }
}

inline std::size_t Index::find(std::string_view key, std::span<const Entry> entries) const noexcept {
    return entries.empty() ? none : entryOf(slotOf(hash(key), key, entries));
}

template <class Replace> void Index::build(std::vector<Entry>& entries, Replace&& replace) {
    const std::size_t size =
        std::bit_ceil(entries.size() + entries.size() / 2 + 1); // load factor of at most two thirds
    slots_ = std::make_unique<std::uint64_t[]>(size);
    mask_ = size - 1;
    // The address differs from run to run, so colliding keys cannot be prepared.
    seed_ = reinterpret_cast<std::uintptr_t>(slots_.get());
    std::size_t kept = 0;
    for (const Entry entry : entries) {
        const std::uint64_t hashed = hash(entry.key);
        std::uint64_t& slot = slotOf(hashed, entry.key, entries);
        if (slot != 0) {
            replace(entries[entryOf(slot)], entry);
        } else {
            entries[kept++] = entry;
            slot = (hashed & tagBits) | kept;
        }
    }
    entries.resize(kept);
}

} // namespace StringTables::internal
