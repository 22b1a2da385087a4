#include "Exchange/DecodedText.h"

#include "StringTables/internal/Contents.h"

namespace Exchange {

using StringTables::internal::ByteOrder;

namespace {

void appendUnit(std::string& out, char32_t unit, ByteOrder order) {
    const char high = static_cast<char>(unit >> 8), low = static_cast<char>(unit & 0xFF);
    out += order == ByteOrder::big ? high : low;
    out += order == ByteOrder::big ? low : high;
}

} // namespace

Runtime::Result<DecodedText> DecodedText::of(std::string bytes) {
    StringTables::internal::Contents contents(bytes);
    if (auto recognized = StringTables::internal::recognize(contents); !recognized)
        return std::move(recognized.error());
    DecodedText decoded;
    if (contents.source != bytes) {
        decoded.hasMark = bytes.starts_with("\xFF\xFE") || bytes.starts_with("\xFE\xFF");
        const bool isBig = decoded.hasMark ? bytes[0] == '\xFE' : bytes[0] == '\0';
        decoded.utf16 = isBig ? ByteOrder::big : ByteOrder::little;
    }
    decoded.text = std::move(contents.source);
    return decoded;
}

std::string DecodedText::encoded(std::string_view edited) const {
    if (!utf16)
        return std::string(edited);
    std::string out;
    if (hasMark)
        appendUnit(out, 0xFEFF, *utf16);
    while (!edited.empty()) {
        const char32_t c = StringTables::internal::takeCharacter(edited);
        if (c < 0x10000) {
            appendUnit(out, c, *utf16);
        } else {
            appendUnit(out, 0xD800 + ((c - 0x10000) >> 10), *utf16);
            appendUnit(out, 0xDC00 + ((c - 0x10000) & 0x3FF), *utf16);
        }
    }
    return out;
}

} // namespace Exchange
