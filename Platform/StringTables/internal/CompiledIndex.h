// StringTables/internal/CompiledIndex.h
// The index of a compiled table. A compiled table is a binary property list like any other: a dictionary of texts. Its
// first object, which nothing refers to, holds data: an index that finds the key and the text of an entry without
// reading the rest of the file, and in UTF-8 the strings that the list has in UTF-16.
// Docs/decisions/0006-compiled-tables.md says why.
//
// The file: "bplist00"; the index; the ASCII strings; the dictionary; the UTF-16 strings; the offsets; the trailer.
// What a bundle's reader needs is in front, and is called the front.
// The index, all numbers little-endian: the mark; how many slots, buckets and entries there are and how long the front
// is; a check of these; a 16-bit displacement for each bucket; the slots; the strings. It is a perfect hash: the key's
// bucket has a displacement, which with the key's hash gives the one slot where its entry can be. A slot says where in
// the front the characters of the key and of the text are.
#pragma once

#include "StringTables/internal/KeyHash.h"
#include <cstddef>
#include <cstdint>
#include <optional>
#include <span>
#include <string>
#include <string_view>
#include <vector>

namespace StringTables::internal {

class CompiledIndex {
public:
    // A slot without an entry has only zeros.
    struct Slot {
        std::uint32_t keyAt = 0, keySize = 0; // in bytes, from the file's first one on
        std::uint32_t textAt = 0, textSize = 0;
        std::uint32_t check = 0; // binds the text to the key
    };
    static constexpr std::size_t slotSize = 20;
    static constexpr std::size_t objectAt = 8; // of the index in the file: behind the mark of binary property lists
    // From the file's first byte to the first displacement: what recognize() needs.
    static constexpr std::size_t headSize = 42;

    // What the beginning of a file says.
    enum class State { none, damaged, present };
    // `head`: the first headSize bytes of the file, fewer if it is shorter. `out` is the index if the state is present;
    // what follows the head may still be damaged.
    static State recognize(std::string_view head, CompiledIndex& out) noexcept;
    // The same for a whole file, whose trailer has a mark of its own: a compiled table must not be read without its
    // index.
    static State recognizeFile(std::string_view file, CompiledIndex& out) noexcept;

    std::uint32_t slots() const noexcept { return slots_; }
    std::uint32_t entries() const noexcept { return entries_; }
    std::size_t front() const noexcept { return front_; }
    // One past the slots, in the file.
    std::size_t slotsEnd() const noexcept { return slotAt(slots_); }

    // Where in the file the displacement of the key's bucket is, and with it, the key's slot.
    std::size_t displacementAt(std::uint64_t hash) const noexcept { return headSize + 2 * std::size_t{bucket(hash)}; }
    std::uint32_t slot(std::uint64_t hash, std::uint16_t displacement) const noexcept {
        return reduced((hash ^ (displacement + std::uint64_t{1}) * hashSpread) * hashSpread, slots_);
    }
    std::size_t slotAt(std::uint32_t slot) const noexcept {
        return headSize + 2 * std::size_t{buckets_} + slotSize * slot;
    }
    static Slot slotFrom(const char* bytes) noexcept {
        const auto number = [bytes](std::size_t i) { return loadLittle<std::uint32_t>(bytes + 4 * i); };
        return {number(0), number(1), number(2), number(3), number(4)};
    }

    // Of a text that belongs to a key.
    static std::uint32_t check(std::uint64_t keyHash, std::string_view text) noexcept {
        const std::uint64_t both = mixed(keyHash ^ hashSpread, StringTables::keyHash(text) ^ ~hashSpread);
        return static_cast<std::uint32_t>(both ^ both >> 32);
    }

private:
    friend class CompiledIndexWriter;
    static constexpr std::size_t markAt = 14;
    static constexpr std::string_view mark = "\x1Flumix\x01\x1E";
    static constexpr std::size_t trailerSize = 32;
    static constexpr std::string_view trailerMark = "lumix"; // in bytes of the trailer that have no meaning

    // A number below `bound` from the upper bits of `hash`.
    static std::uint32_t reduced(std::uint64_t hash, std::uint32_t bound) noexcept {
        return static_cast<std::uint32_t>((hash >> 32) * bound >> 32);
    }
    std::uint32_t bucket(std::uint64_t hash) const noexcept { return reduced(hash << 32, buckets_); }
    std::uint32_t numbersCheck() const noexcept;

    std::uint32_t slots_ = 0;
    std::uint32_t buckets_ = 0;
    std::uint32_t entries_ = 0;
    std::uint32_t front_ = 0;
};

// Makes the index of a table whose entries have these keys.
class CompiledIndexWriter {
public:
    // No value when there is no perfect hash, as for two keys of one hash.
    static std::optional<CompiledIndexWriter> make(std::span<const std::uint64_t> keyHashes);

    // The size of the index as an object of the list, with `strings` bytes of strings. They begin at stringsAt().
    std::size_t objectSize(std::size_t strings) const noexcept {
        return stringsAt() + strings - CompiledIndex::objectAt;
    }
    std::size_t stringsAt() const noexcept { return index_.slotsEnd(); }
    // Writes the index into a file that has room for it. Slots are those of the entries, in the order of make().
    void write(std::string& file, std::size_t front, std::string_view strings,
               std::span<const CompiledIndex::Slot> slots) const;

private:
    CompiledIndex index_;
    std::vector<std::uint16_t> displacements_;
    std::vector<std::uint32_t> slotOfEntry_;
};

} // namespace StringTables::internal
