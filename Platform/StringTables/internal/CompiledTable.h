// StringTables/internal/CompiledTable.h
// Lookups in a compiled table. Each entry is validated when it is used: whatever the bytes are, nothing outside of them
// is read, and a text is found only if it is UTF-8 and its checksum with the key is right. Text: UTF-8. Threads: any;
// lookups are lock-free. Ownership: views live as long as the table.
#pragma once

#include "StringTables/internal/CompiledIndex.h"
#include "StringTables/internal/FoundText.h"
#include <algorithm>
#include <atomic>
#include <memory>
#include <optional>
#include <string>
#include <string_view>

namespace StringTables::internal {

// The front of a compiled table in memory.
class CompiledTable {
public:
    CompiledTable() = default; // without entries
    // `front`: the first index.frontSize() bytes of the file, or all if it is shorter.
    CompiledTable(std::string front, const CompiledIndex& index);

    // The text of `key`, whose hash is `hash`, or none.
    [[nodiscard]] FoundText find(std::string_view key, std::uint64_t hash) const noexcept {
        if (front_.empty())
            return {};
        const auto displacement = Runtime::loadLittle<std::uint16_t>(front_.data() + index_.displacementAt(hash));
        const std::uint32_t number = index_.slot(hash, displacement);
        const CompiledIndex::Slot slot = readSlot(number);
        std::uint32_t state = states_[number].load(std::memory_order_relaxed);
        if (state == unknown) [[unlikely]]
            state = check(number, key);
        if (state == damaged || keyOf(slot) != key)
            return {};
        return FoundText(textOf(slot), PercentRange::unpacked(state - intact));
    }

private:
    CompiledIndex::Slot readSlot(std::uint32_t number) const noexcept {
        return CompiledIndex::slotFrom(front_.data() + index_.slotAt(number));
    }
    // For a slot whose places are inside the front.
    std::string_view keyOf(const CompiledIndex::Slot& slot) const noexcept {
        return {front_.data() + slot.keyAt, slot.keySize};
    }
    std::string_view textOf(const CompiledIndex::Slot& slot) const noexcept {
        return {front_.data() + slot.textAt, slot.textSize};
    }

    // The states of a slot. That of an intact slot is `intact` plus the packed range of the text's percent signs.
    static constexpr std::uint32_t unknown = 0, damaged = 1, intact = 2;
    static_assert(PercentRange::largestPacked + std::uint64_t{intact} <= 0xFFFF'FFFF);

    bool isInside(std::size_t at, std::size_t size) const noexcept { return at + size <= front_.size(); }
    // The state of slot `number`, which is unknown, for a lookup of `key`: `damaged` if the slot is another key's, else
    // its true state, which is stored.
    [[gnu::noinline]] std::uint32_t check(std::uint32_t number, std::string_view key) const noexcept;

    std::string front_; // empty if the file ends before the slots do
    CompiledIndex index_;
    std::unique_ptr<std::atomic<std::uint32_t>[]> states_; // of the slots
    // How many bytes of text may still be checked. The limit keeps the cost linear if all slots of an index refer to
    // one long text.
    mutable std::atomic<std::ptrdiff_t> textBudget_;
};

// The texts that are checked are together at most this many times as long as the front. writeCompiled() stays below
// that.
inline constexpr std::size_t mostTextPerFront = 8;

// Whether the text is UTF-8 and, by the slot's checksum, that of the key with this hash.
[[nodiscard]] bool isIntact(const CompiledIndex::Slot& slot, std::uint64_t hash, std::string_view text) noexcept;

// The text of `key`, whose hash is `hash`, or no value, from a file of which only parts are read. `source.bytes(at,
// size)` returns that part of the file as a std::string_view, which is valid until the next call; shorter at the end of
// the file.
template <class Source>
std::optional<std::string> findIn(Source& source, const CompiledIndex& index, std::string_view key,
                                  std::uint64_t hash) {
    const std::string_view displacement = source.bytes(index.displacementAt(hash), sizeof(std::uint16_t));
    if (displacement.size() < sizeof(std::uint16_t))
        return std::nullopt;
    const std::uint32_t number = index.slot(hash, Runtime::loadLittle<std::uint16_t>(displacement.data()));
    const std::string_view bytes = source.bytes(index.slotAt(number), CompiledIndex::slotSize);
    if (bytes.size() < CompiledIndex::slotSize)
        return std::nullopt;
    const CompiledIndex::Slot slot = CompiledIndex::slotFrom(bytes.data());
    if (slot.keySize != key.size() || source.bytes(slot.keyAt, slot.keySize) != key ||
        slot.textSize > index.frontSize())
        return std::nullopt;
    const std::string_view text = source.bytes(slot.textAt, slot.textSize);
    const bool isThere = text.size() == slot.textSize && isIntact(slot, hash, text);
    return isThere ? std::optional(std::string(text)) : std::nullopt;
}

} // namespace StringTables::internal
