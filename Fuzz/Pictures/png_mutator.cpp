// Mutates a picture and usually corrects the checksums of a PNG's chunks, which random changes never do.
#include <cstddef>
#include <cstdint>

extern "C" std::size_t LLVMFuzzerMutate(std::uint8_t* data, std::size_t size, std::size_t maxSize);

namespace {

constexpr std::size_t signatureSize = 8;

// A chunk's CRC-32, bit by bit: 0xEDB88320 is its polynomial.
std::uint32_t checksum(const std::uint8_t* data, std::size_t size) {
    std::uint32_t sum = 0xFFFFFFFF;
    for (std::size_t i = 0; i < size; ++i) {
        sum ^= data[i];
        for (int bit = 0; bit < 8; ++bit)
            sum = (sum >> 1) ^ ((sum & 1) != 0 ? 0xEDB88320 : 0);
    }
    return ~sum;
}

} // namespace

extern "C" std::size_t LLVMFuzzerCustomMutator(std::uint8_t* data, std::size_t size, std::size_t maxSize,
                                               unsigned seed) {
    size = LLVMFuzzerMutate(data, size, maxSize);
    if (seed % 4 == 0 || size < signatureSize || data[1] != 'P')
        return size;
    // A chunk consists of the size of its data, its name, its data, and a checksum of name and data.
    for (std::size_t at = signatureSize; at + 12 <= size;) {
        const std::size_t inside = std::size_t{data[at]} << 24 | std::size_t{data[at + 1]} << 16 |
                                   std::size_t{data[at + 2]} << 8 | data[at + 3];
        if (inside > size - at - 12)
            break;
        const std::uint32_t sum = checksum(data + at + 4, 4 + inside);
        at += 8 + inside;
        for (int shift = 24; shift >= 0; shift -= 8)
            data[at++] = static_cast<std::uint8_t>(sum >> shift);
    }
    return size;
}
