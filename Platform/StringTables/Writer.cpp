#include "StringTables/internal/Writer.h"

#include "StringTables/internal/BinaryWriter.h"
#include "StringTables/internal/Contents.h"
#include "StringTables/internal/Unicode.h"

namespace StringTables {

namespace {

using Entries = std::span<const Entry>;

void appendQuoted(std::string& out, std::string_view text) {
    constexpr std::string_view characters = "\"\\\n\t\r", letters = "\"\\ntr";
    constexpr const char* hex = "0123456789ABCDEF";
    out += '"';
    for (const char c : text) {
        const auto byte = static_cast<unsigned char>(c);
        if (const std::size_t found = characters.find(c); found != characters.npos) {
            out += '\\';
            out += letters[found];
        } else if (byte < ' ' || byte == 0x7F) {
            out += "\\U00";
            out += hex[byte >> 4];
            out += hex[byte & 0xF];
        } else {
            out += c;
        }
    }
    out += '"';
}

std::string writeText(Entries entries) {
    std::string out;
    for (const Entry& entry : entries) {
        appendQuoted(out, entry.key);
        out += " = ";
        appendQuoted(out, entry.text);
        out += ";\n";
    }
    return out;
}

bool xmlHolds(std::string_view text) noexcept {
    for (const char c : text)
        if (static_cast<unsigned char>(c) < ' ' && c != '\t' && c != '\n' && c != '\r')
            return false;
    return text.find("\uFFFE") == text.npos && text.find("\uFFFF") == text.npos;
}

void appendElement(std::string& out, std::string_view name, std::string_view text) {
    out += "\t<";
    (out += name) += '>';
    for (const char c : text)
        switch (c) {
        case '&':
            out += "&amp;";
            break;
        case '<':
            out += "&lt;";
            break;
        case '>':
            out += "&gt;";
            break;
        case '\r': // would be read as a line end
            out += "&#13;";
            break;
        default:
            out += c;
        }
    out += "</";
    (out += name) += ">\n";
}

Runtime::Result<std::string> writeXml(Entries entries) {
    std::string out = "<?xml version=\"1.0\" encoding=\"UTF-8\"?>\n"
                      "<!DOCTYPE plist PUBLIC \"-//Apple//DTD PLIST 1.0//EN\" "
                      "\"http://www.apple.com/DTDs/PropertyList-1.0.dtd\">\n"
                      "<plist version=\"1.0\">\n<dict>\n";
    for (const Entry& entry : entries) {
        if (!xmlHolds(entry.key) || !xmlHolds(entry.text))
            return Runtime::Error{"the entry " + internal::quoted(entry.key) + " holds a character that XML cannot",
                                  {}};
        appendElement(out, "key", entry.key);
        appendElement(out, "string", entry.text);
    }
    return out + "</dict>\n</plist>\n";
}

// The objects are the dictionary, then each different string once, as keys and texts first name it.
std::string writeBinary(Entries entries) {
    internal::BinaryWriter writer;
    const auto table = writer.dictionary();
    for (const Entry& entry : entries)
        writer.string(entry.key);
    for (const Entry& entry : entries)
        writer.add(table, writer.string(entry.key), writer.string(entry.text));
    return writer.write();
}

} // namespace

Runtime::Result<std::string> write(std::span<const Entry> entries, Form form) {
    for (const Entry& entry : entries)
        if (internal::firstInvalidUtf8(entry.key) != std::string_view::npos ||
            internal::firstInvalidUtf8(entry.text) != std::string_view::npos)
            return Runtime::Error{"the entry " + internal::quoted(entry.key) + " is not UTF-8", {}};
    switch (form) {
    case Form::text:
        return writeText(entries);
    case Form::xml:
        return writeXml(entries);
    case Form::binary:
        break;
    }
    return writeBinary(entries);
}

} // namespace StringTables
