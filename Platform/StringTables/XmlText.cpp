#include "StringTables/internal/XmlText.h"

#include "StringTables/internal/Unicode.h"
#include <algorithm>
#include <cstdint>

namespace StringTables::internal {

bool canBeXml(std::string_view text) noexcept {
    const auto isControl = [](char c) {
        return static_cast<unsigned char>(c) < ' ' && c != '\t' && c != '\n' && c != '\r';
    };
    return std::ranges::none_of(text, isControl) && text.find("\uFFFE") == text.npos &&
           text.find("\uFFFF") == text.npos;
}

std::string xmlText(std::string_view text, bool inAscii) {
    std::string out;
    while (!text.empty()) {
        const auto [code, bytes] = takeCharacterWithBytes(text);
        if (code == '&')
            out += "&amp;";
        else if (code == '<')
            out += "&lt;";
        else if (code == '>')
            out += "&gt;";
        else if (code == '\r' || (inAscii && code > 0x7F)) // a carriage return would be read as a line feed
            out.append("&#").append(std::to_string(std::uint32_t{code})).append(";");
        else
            out += bytes;
    }
    return out;
}

std::string withoutMark(std::string_view text, std::string_view mark) {
    std::string out;
    for (const char c : text) {
        if (out.ends_with(mark[0]) && c == mark[1])
            out += ' ';
        out += c;
    }
    return out;
}

} // namespace StringTables::internal
