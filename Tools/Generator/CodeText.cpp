#include "Generator/CodeText.h"

#include "Generator/Unicode.h"
#include "StringTables/internal/Unicode.h"
#include <algorithm>
#include <cstdint>
#include <cstdio>

namespace Generator {

namespace {

template <class... Values> std::string printed(const char* format, Values... values) {
    char buffer[16];
    std::snprintf(buffer, sizeof buffer, format, values...);
    return buffer;
}

// Most texts consist of such characters, which need no decoding.
constexpr bool isVisibleAscii(char c) {
    return c >= ' ' && c < 0x7F;
}

// The visible ASCII characters at the start of `text`.
std::string_view plainFront(std::string_view text) {
    return {text.begin(), std::ranges::find_if_not(text, isVisibleAscii)};
}

// The bytes of the first character of `text`; one byte if it is invalid.
std::string_view firstCharacter(std::string_view text) {
    std::size_t size = 1;
    while (size < std::min<std::size_t>(text.size(), 4) && !StringTables::internal::beginsCharacter(text[size]))
        ++size;
    const std::u32string decoded = Unicode::decoded(text.substr(0, size));
    const bool isOne = decoded.size() == 1 && Unicode::encoded(decoded) == text.substr(0, size);
    return text.substr(0, isOne ? size : 1);
}

std::string visibleCharacter(std::string_view bytes) {
    const char32_t c = Unicode::decoded(bytes)[0];
    if (Unicode::isVisible(c) && Unicode::encoded({&c, 1}) == bytes)
        return std::string(bytes);
    if (Unicode::encoded({&c, 1}) != bytes) // a byte that is not UTF-8
        return printed("\\x%02X", static_cast<unsigned char>(bytes[0]));
    switch (c) {
    case '\n':
        return "\\n";
    case '\r':
        return "\\r";
    case '\t':
        return "\\t";
    default:
        return printed("\\u{%X}", static_cast<unsigned>(c));
    }
}

} // namespace

std::string visibleText(std::string_view text, std::size_t limit) {
    std::string visible;
    while (!text.empty()) {
        if (limit == 0)
            return visible + "…";
        const std::string_view plain = plainFront(text).substr(0, limit);
        const std::string_view part = plain.empty() ? firstCharacter(text) : plain;
        visible += plain.empty() ? visibleCharacter(part) : std::string(part);
        limit -= plain.empty() ? 1 : plain.size();
        text.remove_prefix(part.size());
    }
    return visible;
}

std::string quote(std::string_view text) {
    return '"' + visibleText(text) + '"';
}

std::string fingerprint(std::span<const std::string_view> texts) {
    std::uint64_t hash = 0xCBF29CE484222325; // FNV-1a
    for (const std::string_view text : texts)
        for (const char byte : text)
            hash = (hash ^ static_cast<unsigned char>(byte)) * 0x100000001B3;
    char digits[17];
    std::snprintf(digits, sizeof digits, "%016llx", static_cast<unsigned long long>(hash));
    return digits;
}

std::size_t columnsOf(std::string_view text) {
    if (std::ranges::all_of(text, isVisibleAscii))
        return text.size();
    std::size_t columns = 0;
    for (const char32_t c : Unicode::decoded(text))
        columns += Unicode::columnsOf(c);
    return columns;
}

std::string literal(std::string_view bytes) {
    std::string code = "\"";
    while (!bytes.empty()) {
        const std::string_view plain(bytes.begin(), std::ranges::find_if_not(bytes, [](char c) {
                                         return isVisibleAscii(c) && c != '"' && c != '\\' && c != '?';
                                     }));
        code += plain;
        bytes.remove_prefix(plain.size());
        if (bytes.empty())
            break;
        const std::string_view character = firstCharacter(bytes);
        const bool beginsTrigraph = character == "?" && code.ends_with('?');
        if (character == "\"" || character == "\\" || beginsTrigraph)
            code.append("\\").append(character);
        else if (visibleCharacter(character) == character)
            code += character;
        else // octal escapes have at most three digits; a hexadecimal escape could swallow the next character
            for (const char byte : character)
                code += printed("\\%03o", static_cast<unsigned>(static_cast<unsigned char>(byte)));
        bytes.remove_prefix(character.size());
    }
    return code + '"';
}

} // namespace Generator
