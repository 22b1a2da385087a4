#include "StringTables/internal/Writer.h"

#include "StringTables/internal/BinaryWriter.h"
#include "StringTables/internal/Contents.h"
#include "StringTables/internal/Unicode.h"
#include "StringTables/internal/XmlText.h"

namespace StringTables {

namespace {

using Entries = std::span<const Entry>;
using Comments = std::span<const std::string>;

// The comment of the entry, or an empty string.
std::string_view commentOf(Comments comments, std::size_t entry) noexcept {
    return entry < comments.size() ? std::string_view(comments[entry]) : std::string_view();
}

Runtime::Error error(std::string_view what, const Entry& entry, std::string_view wrong) {
    return {std::string(what).append(internal::quoted(entry.key)).append(wrong), {}};
}

Runtime::Error notUtf8(const Entry& entry) {
    return error("the entry ", entry, " is not UTF-8");
}

// Fails for what neither text nor XML can represent: an entry or a comment that is not UTF-8, a comment with a NUL.
Runtime::Result<void> check(const Entry& entry, std::string_view comment) {
    if (!internal::isUtf8(entry.key) || !internal::isUtf8(entry.text))
        return notUtf8(entry);
    if (!internal::isUtf8(comment))
        return error("the comment of ", entry, " is not UTF-8");
    if (comment.find('\0') != comment.npos)
        return error("the comment of ", entry, " contains a NUL character");
    return {};
}

Runtime::Result<std::string> writeText(Entries entries, Comments comments) {
    std::string out;
    for (std::size_t i = 0; i < entries.size(); ++i) {
        if (auto checked = check(entries[i], commentOf(comments, i)); !checked)
            return std::move(checked.error());
        if (const std::string_view comment = commentOf(comments, i); !comment.empty())
            out.append("/* ").append(internal::withoutMark(comment, "*/")).append(" */\n");
        appendQuoted(out, entries[i].key);
        out += " = ";
        appendQuoted(out, entries[i].text);
        out += ";\n";
        if (auto fits = checkWrittenSize(out.size()); !fits)
            return std::move(fits.error());
    }
    return out;
}

void appendElement(std::string& out, std::string_view name, std::string_view text) {
    out += "\t<";
    out.append(name).append(">").append(internal::xmlText(text));
    out += "</";
    out.append(name).append(">\n");
}

Runtime::Result<std::string> writeXml(Entries entries, Comments comments) {
    std::string out = "<?xml version=\"1.0\" encoding=\"UTF-8\"?>\n"
                      "<!DOCTYPE plist PUBLIC \"-//Apple//DTD PLIST 1.0//EN\" "
                      "\"http://www.apple.com/DTDs/PropertyList-1.0.dtd\">\n"
                      "<plist version=\"1.0\">\n<dict>\n";
    for (std::size_t i = 0; i < entries.size(); ++i) {
        const std::string_view key = entries[i].key, text = entries[i].text;
        const std::string_view comment = commentOf(comments, i);
        if (auto checked = check(entries[i], comment); !checked)
            return std::move(checked.error());
        constexpr std::string_view notXml = " contains a character that XML cannot represent";
        if (!internal::canBeXml(key) || !internal::canBeXml(text))
            return error("the entry ", entries[i], notXml);
        if (!internal::canBeXml(comment))
            return error("the comment of ", entries[i], notXml);
        if (!comment.empty())
            out.append("\t<!-- ").append(internal::withoutMark(comment, "--")).append(" -->\n");
        appendElement(out, "key", key);
        appendElement(out, "string", text);
        if (auto fits = checkWrittenSize(out.size()); !fits)
            return std::move(fits.error());
    }
    return out + "</dict>\n</plist>\n";
}

// The objects are the dictionary, then each distinct string once.
Runtime::Result<std::string> writeBinary(Entries entries) {
    internal::BinaryWriter writer;
    const auto table = writer.dictionary();
    std::vector<internal::BinaryWriter::Number> keys;
    // All keys first, so that they are next to each other in the file.
    for (const Entry& entry : entries) {
        keys.push_back(writer.string(entry.key));
        if (!writer.isUtf8())
            return notUtf8(entry);
    }
    for (std::size_t i = 0; i < entries.size(); ++i) {
        writer.add(table, keys[i], writer.string(entries[i].text));
        if (!writer.isUtf8())
            return notUtf8(entries[i]);
    }
    std::string bytes = writer.write();
    if (auto fits = checkWrittenSize(bytes.size()); !fits)
        return std::move(fits.error());
    return bytes;
}

} // namespace

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

Runtime::Result<std::string> write(Entries entries, Form form, Comments comments) {
    if (form == Form::binary)
        return writeBinary(entries);
    if (auto fits = checkWrittenSize(sizeOf(entries)); !fits) // before memory is used for the output
        return std::move(fits.error());
    return form == Form::text ? writeText(entries, comments) : writeXml(entries, comments);
}

Runtime::Result<void> checkWrittenSize(std::size_t size) {
    if (size <= Table::maxBytes)
        return {};
    return Runtime::Error{"the table would be larger than " + std::to_string(Table::maxBytes) + " bytes", {}};
}

std::size_t sizeOf(Entries entries) noexcept {
    std::size_t size = 0;
    for (const Entry& entry : entries)
        size += entry.key.size() + entry.text.size();
    return size;
}

} // namespace StringTables
