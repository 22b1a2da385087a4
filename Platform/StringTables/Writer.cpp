#include "StringTables/internal/Writer.h"

#include "StringTables/internal/Contents.h"
#include "StringTables/internal/Scan.h"
#include "StringTables/internal/Unicode.h"
#include <bit>
#include <unordered_map>

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
class BinaryWriter {
public:
    explicit BinaryWriter(Entries entries) : entries_(entries) {
        for (const Entry& entry : entries_)
            keep(entry.key);
        for (const Entry& entry : entries_)
            keep(entry.text);
    }

    std::string write() {
        const std::size_t refSize = bytesFor(strings_.size());
        out_ = "bplist00";
        begin(0xD, entries_.size());
        for (const Entry& entry : entries_)
            put(numbers_[entry.key], refSize);
        for (const Entry& entry : entries_)
            put(numbers_[entry.text], refSize);
        for (const std::string_view text : strings_)
            string(text);
        const std::size_t tableAt = out_.size(), offsetSize = bytesFor(tableAt);
        for (const std::size_t offset : offsets_)
            put(offset, offsetSize);
        put(0, 6);
        put(offsetSize, 1);
        put(refSize, 1);
        put(offsets_.size(), 8);
        put(0, 8); // the dictionary's number
        put(tableAt, 8);
        return std::move(out_);
    }

private:
    void keep(std::string_view text) {
        if (numbers_.try_emplace(text, strings_.size() + 1).second)
            strings_.push_back(text);
    }

    // The fewest of 1, 2, 4, 8 bytes that hold `number`.
    static std::size_t bytesFor(std::size_t number) noexcept {
        const auto bits = static_cast<std::size_t>(std::bit_width(number));
        return std::bit_ceil(std::max<std::size_t>((bits + 7) / 8, 1));
    }

    void put(std::uint64_t number, std::size_t size) {
        while (size-- > 0)
            out_ += static_cast<char>(number >> 8 * size & 0xFF);
    }

    // An object's marker and size.
    void begin(unsigned type, std::size_t count) {
        offsets_.push_back(out_.size());
        if (count < 0xF) {
            put(type << 4 | count, 1);
            return;
        }
        const std::size_t size = bytesFor(count);
        put(type << 4 | 0xF, 1);
        put(0x10u | static_cast<unsigned>(std::countr_zero(size)), 1);
        put(count, size);
    }

    void string(std::string_view text) {
        const char* const end = text.data() + text.size();
        if (internal::skipAscii(text.data(), end) == end) {
            begin(0x5, text.size());
            out_ += text;
            return;
        }
        std::u16string units;
        while (!text.empty()) {
            const char32_t code = internal::takeCharacter(text);
            if (code >= 0x10000) {
                units += static_cast<char16_t>(0xD800 + ((code - 0x10000) >> 10));
                units += static_cast<char16_t>(0xDC00 + ((code - 0x10000) & 0x3FF));
            } else {
                units += static_cast<char16_t>(code);
            }
        }
        begin(0x6, units.size());
        for (const char16_t unit : units)
            put(unit, 2);
    }

    Entries entries_;
    std::unordered_map<std::string_view, std::size_t> numbers_;
    std::vector<std::string_view> strings_;
    std::vector<std::size_t> offsets_;
    std::string out_;
};

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
    return BinaryWriter(entries).write();
}

} // namespace StringTables
