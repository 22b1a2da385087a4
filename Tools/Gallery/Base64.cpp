#include "Gallery/Base64.h"

#include <algorithm>

namespace Gallery {

std::string base64(std::span<const std::uint8_t> bytes) {
    static constexpr char digits[] = "ABCDEFGHIJKLMNOPQRSTUVWXYZabcdefghijklmnopqrstuvwxyz0123456789+/";
    std::string text;
    text.reserve((bytes.size() + 2) / 3 * 4);
    for (; !bytes.empty(); bytes = bytes.subspan(std::min<std::size_t>(3, bytes.size()))) {
        std::uint32_t bits = std::uint32_t{bytes[0]} << 16;
        if (bytes.size() > 1)
            bits |= std::uint32_t{bytes[1]} << 8;
        if (bytes.size() > 2)
            bits |= bytes[2];
        text += digits[bits >> 18];
        text += digits[bits >> 12 & 63];
        text += bytes.size() > 1 ? digits[bits >> 6 & 63] : '=';
        text += bytes.size() > 2 ? digits[bits & 63] : '=';
    }
    return text;
}

} // namespace Gallery
