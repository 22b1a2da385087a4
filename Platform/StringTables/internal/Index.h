// StringTables/internal/Index.h
// A hash index from keys to entries. Open addressing; each slot holds part of the key's hash beside the entry's number,
// so that most lookups compare a single key. Threads: immutable once built. Ownership: holds numbers only; the caller
// owns the entries.
#pragma once

#include "Runtime/internal/Hash.h"
#include <bit>
#include <cstdint>
#include <memory>
#include <string_view>
#include <vector>

namespace StringTables::internal {

class Index {
public:
    // Makes the index of these entries. For a repeated key, `replace(entry, later)` merges the later entry into the
    // earlier one, and the later one is removed from `entries`.
    template <class Entry, class Replace> void build(std::vector<Entry>& entries, Replace&& replace);

    // Adds the last of the entries, when the others are in the index already, and returns `none`. If another entry has
    // its key, adds nothing and returns the number of that entry.
    template <class Entry> std::size_t addLast(const std::vector<Entry>& entries);

    // The number of the key's entry, or `none`.
    static constexpr std::size_t none = ~std::size_t{0};
    template <class Entry>
    [[nodiscard]] std::size_t find(std::string_view key, const std::vector<Entry>& entries) const noexcept {
        return slots_ == nullptr ? none : entryOf(slotOf(hash(key), key, entries));
    }

    // Removes all entries and makes room for `count`.
    void clear(std::size_t count) {
        slots_ = std::make_unique<std::uint64_t[]>(slotCount(count));
        mask_ = slotCount(count) - 1;
        // The address differs in each run, so nobody can prepare keys with equal hashes.
        seed_ = reinterpret_cast<std::uintptr_t>(slots_.get());
    }

private:
    // A slot holds the upper half of the key's hash and, in the lower half, the entry's number plus one; 0 means free.
    static constexpr std::uint64_t tagBits = 0xFFFFFFFF00000000;
    static std::size_t entryOf(std::uint64_t slot) noexcept { return (slot & ~tagBits) - 1; } // `none` for a free slot
    static std::uint64_t slotWith(std::uint64_t hash, std::size_t number) noexcept {
        return (hash & tagBits) | (number + 1);
    }
    // At most two thirds of the slots are in use.
    static std::size_t slotCount(std::size_t count) noexcept { return std::bit_ceil(count + count / 2 + 1); }

    std::uint64_t hash(std::string_view key) const noexcept { return Runtime::hashBytes(key, seed_); }
    template <class Entry>
    std::uint64_t& slotOf(std::uint64_t hash, std::string_view key, const std::vector<Entry>& entries) const noexcept;
    // Adds the entry `number` and returns `none`, or returns the number of the entry that has its key.
    template <class Entry> std::size_t add(std::size_t number, const std::vector<Entry>& entries);

    std::unique_ptr<std::uint64_t[]> slots_; // null until the first clear()
    std::uint64_t mask_ = 0;
    std::uint64_t seed_ = 0;
};

template <class Entry>
std::uint64_t& Index::slotOf(std::uint64_t hash, std::string_view key,
                             const std::vector<Entry>& entries) const noexcept {
    for (std::uint64_t at = hash & mask_;; at = (at + 1) & mask_) {
        std::uint64_t& slot = slots_[at];
        if (slot == 0 || (((slot ^ hash) & tagBits) == 0 && entries[entryOf(slot)].key == key))
            return slot;
    }
}

template <class Entry> std::size_t Index::add(std::size_t number, const std::vector<Entry>& entries) {
    const std::string_view key = entries[number].key;
    const std::uint64_t hashed = hash(key);
    std::uint64_t& slot = slotOf(hashed, key, entries);
    if (slot != 0)
        return entryOf(slot);
    slot = slotWith(hashed, number);
    return none;
}

template <class Entry> std::size_t Index::addLast(const std::vector<Entry>& entries) {
    if (slots_ == nullptr || slotCount(entries.size()) > mask_ + 1) {
        clear(entries.size() * 2);
        for (std::size_t i = 0; i + 1 < entries.size(); ++i)
            add(i, entries);
    }
    return add(entries.size() - 1, entries);
}

template <class Entry, class Replace> void Index::build(std::vector<Entry>& entries, Replace&& replace) {
    clear(entries.size());
    std::size_t kept = 0;
    for (const Entry& entry : entries) {
        const std::uint64_t hashed = hash(entry.key);
        std::uint64_t& slot = slotOf(hashed, entry.key, entries);
        if (slot != 0) {
            replace(entries[entryOf(slot)], entry);
        } else {
            slot = slotWith(hashed, kept);
            entries[kept++] = entry;
        }
    }
    entries.resize(kept);
}

} // namespace StringTables::internal
