#include "Exchange/DecodedText.h"

#include "StringTables/internal/Contents.h"

namespace Exchange {

using StringTables::internal::ByteOrder;

namespace {

void appendUnit(std::string& out, char16_t unit, ByteOrder order) {
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
    if (contents.source != bytes) { // it was UTF-16
        decoded.hasMark = bytes.starts_with("\xFF\xFE") || bytes.starts_with("\xFE\xFF");
        // Without a mark the text begins with an ASCII character, one of whose bytes is 0.
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
        appendUnit(out, u'\uFEFF', *utf16);
    for (const char16_t unit : StringTables::internal::toUtf16(edited))
        appendUnit(out, unit, *utf16);
    return out;
}

} // namespace Exchange
