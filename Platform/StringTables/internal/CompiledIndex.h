// StringTables/internal/CompiledIndex.h
// The index of a compiled table. A compiled table is a valid binary property list: a dictionary of texts. Its first
// object, which nothing refers to, is a data object with two things: an index that finds an entry's key and text
// without reading the rest of the file, and a UTF-8 copy of the strings that the dictionary has in UTF-16.
// Docs/decisions/0006-compiled-tables.md gives the reasons.
//
// The file: "bplist00"; the data object; the ASCII strings; the dictionary; the UTF-16 strings; the offsets; the
// trailer. The first three, which are all that a bundle's reader needs, are called the front. The data object: its
// marker and size; `mark`; the numbers of slots, buckets and entries and the size of the front; a checksum of these; a
// displacement of 16 bits for each bucket; the slots; the UTF-8 copy. After `mark`, numbers are little-endian, and all
// but the displacements have 32 bits. The index is a perfect hash: the hash of a key (Runtime::keyHash) selects a
// bucket, and the hash with the bucket's displacement selects the only slot where the entry can be. A slot holds the
// places of key and text in the front.
#pragma once

#include "Runtime/internal/Hash.h"
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
        std::uint32_t keyAt = 0, keySize = 0; // offset in the file, size in bytes
        std::uint32_t textAt = 0, textSize = 0;
        std::uint32_t check = 0; // checksum of key and text
    };
    static constexpr std::size_t slotSize = 20;
    static constexpr std::size_t objectAt = 8; // offset of the data object, after "bplist00"
    // The size of everything before the first displacement: what recognize() needs.
    static constexpr std::size_t headSize = 42;

    // Whether a file has an index.
    enum class State { none, damaged, present };
    // `head`: the first headSize bytes of the file, or all if it is shorter. `out` is the index if the state is
    // `present`; the rest of the file may still be damaged.
    static State recognize(std::string_view head, CompiledIndex& out) noexcept;
    // The same for a whole file. Its trailer has a mark, too, so that a compiled table whose index has no mark any more
    // counts as damaged.
    static State recognizeFile(std::string_view file, CompiledIndex& out) noexcept;

    std::uint32_t slotCount() const noexcept { return slotCount_; }
    std::uint32_t entryCount() const noexcept { return entryCount_; }
    std::size_t frontSize() const noexcept { return frontSize_; }
    // The offset one past the slots.
    std::size_t slotsEnd() const noexcept { return slotAt(slotCount_); }

    // The offset of the displacement of the key's bucket, and the key's slot for that displacement.
    std::size_t displacementAt(std::uint64_t hash) const noexcept { return headSize + 2 * std::size_t{bucket(hash)}; }
    std::uint32_t slot(std::uint64_t hash, std::uint16_t displacement) const noexcept {
        return reduced((hash ^ (displacement + std::uint64_t{1}) * Runtime::hashSpread) * Runtime::hashSpread,
                       slotCount_);
    }
    std::size_t slotAt(std::uint32_t slot) const noexcept {
        return headSize + 2 * std::size_t{bucketCount_} + slotSize * slot;
    }
    static Slot slotFrom(const char* bytes) noexcept {
        const auto number = [bytes](std::size_t i) { return Runtime::loadLittle<std::uint32_t>(bytes + 4 * i); };
        return {number(0), number(1), number(2), number(3), number(4)};
    }

    // The checksum of a key and its text.
    static std::uint32_t check(std::uint64_t keyHash, std::string_view text) noexcept {
        const std::uint64_t both =
            Runtime::mixed(keyHash ^ Runtime::hashSpread, Runtime::keyHash(text) ^ ~Runtime::hashSpread);
        return static_cast<std::uint32_t>(both ^ both >> 32);
    }

private:
    friend class CompiledIndexWriter;
    static constexpr std::size_t markAt = 14;
    // "Lumora index", shortened, and its version, 1, between bytes that texts do not have.
    static constexpr std::string_view mark = "\x1Flumix\x01\x1E";
    static constexpr std::size_t trailerSize = 32;
    static constexpr std::string_view trailerMark = "lumix"; // in the unused bytes of the trailer

    // Maps the upper half of `hash` to a number below `bound`.
    static std::uint32_t reduced(std::uint64_t hash, std::uint32_t bound) noexcept {
        return static_cast<std::uint32_t>((hash >> 32) * bound >> 32);
    }
    std::uint32_t bucket(std::uint64_t hash) const noexcept { return reduced(hash << 32, bucketCount_); }
    std::uint32_t numbersCheck() const noexcept;

    std::uint32_t slotCount_ = 0;
    std::uint32_t bucketCount_ = 0;
    std::uint32_t entryCount_ = 0;
    std::uint32_t frontSize_ = 0;
};

// Builds the index of a table.
class CompiledIndexWriter {
public:
    // No value when no perfect hash is found, for example because two keys have the same hash.
    static std::optional<CompiledIndexWriter> make(std::span<const std::uint64_t> keyHashes);

    // The size of the data object with `copySize` bytes of UTF-8 copy, which begins at the offset copyAt().
    std::size_t objectSize(std::size_t copySize) const noexcept {
        return copyAt() + copySize - CompiledIndex::objectAt;
    }
    std::size_t copyAt() const noexcept { return index_.slotsEnd(); }
    // Writes the index with `copy` into the space reserved in `file`, and the mark into the trailer. `slots` are in the
    // order of the hashes given to make().
    void write(std::string& file, std::size_t frontSize, std::string_view copy,
               std::span<const CompiledIndex::Slot> slots) const;

private:
    CompiledIndex index_;
    std::vector<std::uint16_t> displacements_;
    std::vector<std::uint32_t> slotOfEntry_;
};

} // namespace StringTables::internal
