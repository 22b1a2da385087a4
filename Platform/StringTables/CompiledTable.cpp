#include "StringTables/internal/CompiledTable.h"

#include "StringTables/internal/Unicode.h"

namespace StringTables::internal {

CompiledTable::CompiledTable(std::string front, const CompiledIndex& index)
    : front_(front.size() < index.slotsEnd() ? std::string() : std::move(front)), index_(index),
      states_(new std::atomic<std::uint32_t>[front_.empty() ? 0 : index.slotCount()] {}),
      textBudget_(static_cast<std::ptrdiff_t>(mostTextPerFront * front_.size())) {}

std::uint32_t CompiledTable::check(std::uint32_t number, std::string_view key) const noexcept {
    const CompiledIndex::Slot slot = readSlot(number);
    if (!isInside(slot.keyAt, slot.keySize) || keyOf(slot) != key || !isInside(slot.textAt, slot.textSize))
        return damaged; // or the slot of another key; the stored state stays unknown
    const std::string_view text = textOf(slot);
    const auto size = static_cast<std::ptrdiff_t>(text.size());
    const std::uint64_t hash = Runtime::keyHash(key); // the lookup's may be wrong
    const bool isRight = textBudget_.load(std::memory_order_relaxed) >= size && isIntact(slot, hash, text);
    // Several threads may check one slot at the same time; they get the same result, and the first is counted.
    const std::uint32_t found = isRight ? intact + PercentRange::of(text).packed() : damaged;
    std::uint32_t state = unknown;
    if (!states_[number].compare_exchange_strong(state, found, std::memory_order_relaxed))
        return state;
    textBudget_.fetch_sub(size, std::memory_order_relaxed);
    return found;
}

bool isIntact(const CompiledIndex::Slot& slot, std::uint64_t hash, std::string_view text) noexcept {
    return slot.check == CompiledIndex::check(hash, text) && isUtf8(text);
}

} // namespace StringTables::internal
