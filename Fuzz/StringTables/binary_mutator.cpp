// Mutates a binary table. Random changes leave the end of the file valid only if nothing before it moves. So half of
// the time only the objects are changed, and their offsets and the numbers in the trailer are written again.
#include <cstddef>
#include <cstdint>
#include <cstring>
#include <vector>

extern "C" std::size_t LLVMFuzzerMutate(std::uint8_t* data, std::size_t size, std::size_t maxSize);

namespace {

constexpr std::size_t headerSize = 8, trailerSize = 32;

std::uint64_t number(const std::uint8_t* at, std::size_t size) {
    std::uint64_t value = 0;
    for (std::size_t i = 0; i < size; ++i)
        value = value << 8 | at[i];
    return value;
}

// The size of the object at `at`, which has at most `left` bytes. Its first byte has its type and its count. For the
// types from data on, except a UID, the count 0xF means that an integer with the count follows.
std::uint64_t sizeOf(const std::uint8_t* at, std::size_t left, std::size_t refSize) {
    const std::size_t type = *at >> 4;
    std::uint64_t count = *at & 0xF, head = 1;
    if (type >= 4 && type != 8 && count == 0xF && left > 1 && at[1] >> 4 == 0x1) {
        const std::size_t countSize = std::size_t{1} << (at[1] & 3);
        head = 2 + countSize;
        count = head <= left ? number(at + 2, countSize) & 0xFFFFFFFF : 0; // 32 bits, so that no product overflows
    }
    switch (type) {
    case 0x1: // integer
    case 0x2: // floating-point number
        return head + (std::uint64_t{1} << (count & 3));
    case 0x3: // date
        return head + 8;
    case 0x4: // data
    case 0x5: // ASCII text
        return head + count;
    case 0x6: // UTF-16 text
        return head + count * 2;
    case 0x8: // UID
        return head + count + 1;
    case 0xA: // array
        return head + count * refSize;
    case 0xD: // dictionary
        return head + count * refSize * 2;
    default:
        return head;
    }
}

} // namespace

extern "C" std::size_t LLVMFuzzerCustomMutator(std::uint8_t* data, std::size_t size, std::size_t maxSize,
                                               unsigned seed) {
    if (seed % 2 == 0 || size < headerSize + trailerSize || maxSize < size || std::memcmp(data, "bplist00", 8) != 0)
        return LLVMFuzzerMutate(data, size, maxSize);
    // The trailer has 6 bytes that are written back unchanged, the sizes of an offset and of a reference (1 byte each),
    // the number of objects, the top object, and where the offsets begin (8 bytes each).
    const std::vector<std::uint8_t> trailer(data + size - trailerSize, data + size);
    const std::uint64_t top = number(trailer.data() + 16, 8), tableAt = number(trailer.data() + 24, 8);
    const std::size_t refSize = trailer[7];
    if (tableAt <= headerSize || tableAt > size - trailerSize || refSize < 1 || refSize > 8)
        return LLVMFuzzerMutate(data, size, maxSize);

    std::vector<std::uint8_t> out(data, data + tableAt);
    out.resize(maxSize);
    // As much room as before stays for what follows the objects.
    const std::size_t room = maxSize - headerSize - (size - tableAt);
    out.resize(headerSize + LLVMFuzzerMutate(out.data() + headerSize, tableAt - headerSize, room));
    const std::size_t end = out.size();
    std::vector<std::size_t> offsets;
    for (std::uint64_t at = headerSize; at < end; at += sizeOf(out.data() + at, end - at, refSize))
        offsets.push_back(at);
    const auto put = [&out](std::uint64_t value, std::size_t bytes) {
        while (bytes-- > 0)
            out.push_back(static_cast<std::uint8_t>(value >> 8 * bytes));
    };
    constexpr std::size_t offsetSize = 2;
    for (const std::size_t offset : offsets)
        put(offset, offsetSize);
    out.insert(out.end(), trailer.begin(), trailer.begin() + 6); // unused, or the mark of a compiled table
    put(offsetSize, 1);
    put(refSize, 1);
    put(offsets.size(), 8);
    put(top < offsets.size() ? top : 0, 8);
    put(end, 8); // where the offsets begin
    if (out.size() > maxSize || end > 0xFFFF)
        return LLVMFuzzerMutate(data, size, maxSize);
    std::memcpy(data, out.data(), out.size());
    return out.size();
}
