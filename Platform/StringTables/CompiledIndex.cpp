#include "StringTables/internal/CompiledIndex.h"

#include <algorithm>
#include <array>
#include <limits>

namespace StringTables::internal {

namespace {

template <class Number> void appendLittle(std::string& out, Number number) {
    for (std::size_t i = 0; i < sizeof number; ++i)
        out += static_cast<char>(static_cast<std::uint64_t>(number) >> 8 * i & 0xFF);
}

// Whether more than half of a mark's bytes match: a table with a damaged mark must be reported, not taken for a plain
// one.
bool resembles(std::string_view found, std::string_view mark) noexcept {
    std::size_t same = 0;
    for (std::size_t i = 0; i < mark.size(); ++i)
        same += static_cast<std::size_t>(found[i] == mark[i]);
    return same > mark.size() / 2;
}

// Limits of the search for displacements; a try is one displacement for one bucket. Random keys need far less; keys
// that were made to collide could otherwise cost quadratic time.
constexpr std::size_t fullestBucket = 32;
constexpr std::size_t triesPerKey = 64;
constexpr std::size_t extraTries = std::size_t{1} << 16; // a small table has few free slots for the last buckets

// The indices of the keys in each bucket, largest buckets first because they are the hardest to place.
std::vector<std::vector<std::size_t>> keysByBucket(std::span<const std::uint32_t> bucketOfKey, std::size_t count) {
    std::vector<std::vector<std::size_t>> buckets(count);
    for (std::size_t key = 0; key < bucketOfKey.size(); ++key)
        buckets[bucketOfKey[key]].push_back(key);
    std::ranges::stable_sort(buckets, std::ranges::greater(), &std::vector<std::size_t>::size);
    return buckets;
}

} // namespace

CompiledIndex::State CompiledIndex::recognize(std::string_view head, CompiledIndex& out) noexcept {
    static constexpr std::string_view magic = "bplist00";
    if (head.size() < headSize || !head.starts_with(magic) || !resembles(head.substr(markAt, mark.size()), mark))
        return State::none;
    const char* const numbers = head.data() + markAt + mark.size();
    const auto number = [numbers](std::size_t i) { return Runtime::loadLittle<std::uint32_t>(numbers + 4 * i); };
    out.slotCount_ = number(0);
    out.bucketCount_ = number(1);
    out.entryCount_ = number(2);
    out.frontSize_ = number(3);
    const bool isWhole = head.substr(markAt, mark.size()) == mark && number(4) == out.numbersCheck() &&
                         out.entryCount_ < out.slotCount_ && out.bucketCount_ > 0 && out.slotsEnd() <= out.frontSize_;
    return isWhole ? State::present : State::damaged;
}

CompiledIndex::State CompiledIndex::recognizeFile(std::string_view file, CompiledIndex& out) noexcept {
    const State state = recognize(file.substr(0, headSize), out);
    if (state != State::none || file.size() < trailerSize)
        return state;
    const std::string_view found = file.substr(file.size() - trailerSize, trailerMark.size());
    return resembles(found, trailerMark) ? State::damaged : State::none;
}

std::uint32_t CompiledIndex::numbersCheck() const noexcept {
    std::uint64_t check = Runtime::keyHash(mark);
    for (const std::uint32_t number : {slotCount_, bucketCount_, entryCount_, frontSize_})
        check = Runtime::mixed(check ^ number, Runtime::hashSpread);
    return static_cast<std::uint32_t>(check ^ check >> 32);
}

std::optional<CompiledIndexWriter> CompiledIndexWriter::make(std::span<const std::uint64_t> keyHashes) {
    CompiledIndexWriter writer;
    CompiledIndex& index = writer.index_;
    index.entryCount_ = static_cast<std::uint32_t>(keyHashes.size());
    index.slotCount_ = index.entryCount_ + index.entryCount_ / 8 + 1; // about a ninth of them stays free
    index.bucketCount_ = index.entryCount_ / 4 + 1;                   // four keys in each, on average
    writer.displacements_.resize(index.bucketCount_);
    writer.slotOfEntry_.resize(keyHashes.size());
    std::vector<std::uint32_t> bucketOfKey;
    for (const std::uint64_t hash : keyHashes)
        bucketOfKey.push_back(index.bucket(hash));

    std::vector<bool> isTaken(index.slotCount_);
    std::vector<std::uint32_t> slots;
    // Sets `slots` to the slots of the keys in the bucket. False if one is taken or two are equal.
    const auto fits = [&](const std::vector<std::size_t>& bucket, std::uint16_t displacement) {
        slots.clear();
        for (const std::size_t key : bucket) {
            const std::uint32_t slot = index.slot(keyHashes[key], displacement);
            if (isTaken[slot] || std::ranges::find(slots, slot) != slots.end())
                return false;
            slots.push_back(slot);
        }
        return true;
    };
    std::size_t tries = extraTries + triesPerKey * keyHashes.size();
    for (const std::vector<std::size_t>& bucket : keysByBucket(bucketOfKey, index.bucketCount_)) {
        if (bucket.empty())
            break;
        if (bucket.size() > fullestBucket)
            return std::nullopt;
        static constexpr std::uint32_t most = std::numeric_limits<std::uint16_t>::max();
        std::uint32_t displacement = 0;
        for (; displacement <= most && !fits(bucket, static_cast<std::uint16_t>(displacement)); ++displacement)
            if (tries-- == 0)
                return std::nullopt;
        if (displacement > most)
            return std::nullopt;
        for (std::size_t i = 0; i < bucket.size(); ++i) {
            isTaken[slots[i]] = true;
            writer.slotOfEntry_[bucket[i]] = slots[i];
        }
        writer.displacements_[bucketOfKey[bucket.front()]] = static_cast<std::uint16_t>(displacement);
    }
    return writer;
}

void CompiledIndexWriter::write(std::string& file, std::size_t frontSize, std::string_view copy,
                                std::span<const CompiledIndex::Slot> slots) const {
    CompiledIndex index = index_;
    index.frontSize_ = static_cast<std::uint32_t>(frontSize);
    std::string bytes = "\x4F\x12"; // the markers of a data object and of its size, a number of four bytes
    const std::size_t size = copyAt() + copy.size() - CompiledIndex::markAt;
    for (int shift = 24; shift >= 0; shift -= 8)
        bytes += static_cast<char>(size >> shift & 0xFF);
    bytes += CompiledIndex::mark;
    for (const std::uint32_t number :
         {index.slotCount_, index.bucketCount_, index.entryCount_, index.frontSize_, index.numbersCheck()})
        appendLittle(bytes, number);
    for (const std::uint16_t displacement : displacements_)
        appendLittle(bytes, displacement);
    std::vector<CompiledIndex::Slot> all(index.slotCount_);
    for (std::size_t i = 0; i < slots.size(); ++i)
        all[slotOfEntry_[i]] = slots[i];
    for (const CompiledIndex::Slot& slot : all)
        for (const std::uint32_t number : {slot.keyAt, slot.keySize, slot.textAt, slot.textSize, slot.check})
            appendLittle(bytes, number);
    bytes += copy;
    file.replace(CompiledIndex::objectAt, bytes.size(), bytes);
    file.replace(file.size() - CompiledIndex::trailerSize, CompiledIndex::trailerMark.size(),
                 CompiledIndex::trailerMark);
}

} // namespace StringTables::internal
