#include "Pictures/internal/Pictures.h"

#include "Pictures/internal/Decoders.h"
#include "Runtime/OnceSlot.h"
#include "Runtime/internal/Plugin.h"
#include "Runtime/internal/TransientError.h"
#include <algorithm>
#include <array>
#include <optional>

namespace Pictures {

namespace {

using Bytes = std::span<const std::uint8_t>;

Runtime::Error error(std::string message) {
    return {.message = std::move(message), .file = {}};
}

std::uint32_t bigEndian(Bytes bytes) {
    std::uint32_t value = 0;
    for (const std::uint8_t byte : bytes)
        value = value << 8 | byte;
    return value;
}

// The signature, then the length and type of the first chunk, which begins with width and height.
constexpr std::array<std::uint8_t, 16> pngHead = {0x89, 'P', 'N', 'G', '\r', '\n', 0x1A, '\n',
                                                  0,    0,   0,   13,  'I',  'H',  'D',  'R'};

bool startsWith(Bytes bytes, Bytes head) {
    return bytes.size() >= head.size() && std::ranges::equal(bytes.first(head.size()), head);
}

std::optional<Size> pngSize(Bytes bytes) {
    if (bytes.size() < pngHead.size() + 8)
        return std::nullopt;
    return Size{Encoding::png, bigEndian(bytes.subspan(16, 4)), bigEndian(bytes.subspan(20, 4))};
}

// Scans the segments up to the first frame header.
std::optional<Size> jpegSize(Bytes bytes) {
    std::size_t at = 2;
    while (at + 4 <= bytes.size()) {
        const std::uint8_t marker = bytes[at + 1];
        if (bytes[at] != 0xFF || marker == 0xFF) { // bytes between segments, or fill bytes before a marker
            ++at;
            continue;
        }
        at += 2;
        if (marker == 0x00 || marker == 0x01 || (marker >= 0xD0 && marker <= 0xD8))
            continue; // a marker without a segment
        if (marker == 0xD9 || marker == 0xDA)
            return std::nullopt; // pixel data or end of image before any frame
        // C4, C8 and CC are in the range of frame markers but are not frame headers.
        if (marker >= 0xC0 && marker <= 0xCF && marker != 0xC4 && marker != 0xC8 && marker != 0xCC) {
            // The segment begins with its length (2 bytes), the sample size (1), height (2) and width (2).
            if (at + 7 > bytes.size())
                return std::nullopt;
            return Size{Encoding::jpeg, bigEndian(bytes.subspan(at + 5, 2)), bigEndian(bytes.subspan(at + 3, 2))};
        }
        at += bigEndian(bytes.subspan(at, 2));
    }
    return std::nullopt;
}

using LoadedDecoders = Runtime::Result<const Decoders*>;

LoadedDecoders loadPlugin(const Runtime::ForkGuard& guard) {
    const auto entry = Runtime::pluginSymbol(guard, "lumora-pictures.so", "lumoraPictures");
    if (entry)
        return reinterpret_cast<decltype(&lumoraPictures)>(*entry)();
    Runtime::throwIfTransient(entry.error());
    return entry.error();
}

// The plug-in, or why it cannot be loaded. Only permanent errors are kept.
const LoadedDecoders& decoders() {
    static constinit Runtime::OnceSlot<LoadedDecoders> slot;
    if (slot.isMade())
        return slot.value();
    const Runtime::ForkGuard guard;
    return slot.get([&guard] { return loadPlugin(guard); });
}

} // namespace

Runtime::Result<Size> measure(std::span<const std::uint8_t> bytes) {
    constexpr std::array<std::uint8_t, 3> jpegHead = {0xFF, 0xD8, 0xFF};
    const bool isPng = startsWith(bytes, pngHead);
    if (!isPng && !startsWith(bytes, jpegHead))
        return error("is neither a PNG nor a JPEG file");
    const auto size = isPng ? pngSize(bytes) : jpegSize(bytes);
    if (!size || size->width == 0 || size->height == 0)
        return error(isPng ? "is a damaged PNG: no size" : "is a damaged JPEG: no size");
    return *size;
}

Runtime::Result<Bitmap> decode(std::span<const std::uint8_t> bytes, std::uint64_t maxPixels) {
    const LoadedDecoders& loaded = decoders();
    if (!loaded)
        return loaded.error();
    return decode(bytes, maxPixels, **loaded);
}

Runtime::Result<Bitmap> decode(std::span<const std::uint8_t> bytes, std::uint64_t maxPixels, const Decoders& decoders) {
    const auto size = measure(bytes);
    if (!size)
        return size.error();
    switch (size->encoding) {
    case Encoding::png:
        return decoders.png(bytes, maxPixels);
    case Encoding::jpeg:
        break;
    }
    return decoders.jpeg(bytes, maxPixels);
}

} // namespace Pictures
