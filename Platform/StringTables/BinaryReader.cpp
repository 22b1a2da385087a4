#include "StringTables/internal/Contents.h"
#include "StringTables/internal/Scan.h"
#include "StringTables/internal/Unicode.h"
#include <utility>

namespace StringTables::internal {

namespace {

enum Type : std::uint8_t { ascii = 0x5, utf16 = 0x6, dictionary = 0xD };

// What an object of another type is, for a note.
const char* describe(std::uint8_t type) noexcept {
    constexpr const char* names[16] = {"a truth value", "a number", "a number", "a date",      "data",
                                       nullptr,         nullptr,    nullptr,    "a reference", nullptr,
                                       "an array",      "a set",    "a set",    "a dictionary"};
    return names[type];
}

// The layout: "bplist00", the objects, a table of their offsets, and at the end the trailer that describes them. All
// numbers are big-endian.
class BinaryReader {
public:
    explicit BinaryReader(Contents& contents)
        : contents_(contents), bytes_(contents.source), unread_(contents.source.size()) {}

    Runtime::Result<void> read() {
        if (!trailer() || !table())
            return std::move(error_);
        return {};
    }

private:
    struct Object {
        std::size_t at = 0;
        std::uint8_t type = 0;   // the upper half of the marker byte
        std::uint64_t count = 0; // of the characters or members, which begin at `begin`
        std::size_t begin = 0;
    };

    bool trailer();
    bool table();
    bool entry(std::size_t keyAt, std::size_t textAt);
    bool object(std::uint64_t number, std::size_t namedAt, Object& out);
    bool count(Object& object);
    bool string(std::uint64_t number, Object& object, std::string_view& out);
    bool decode(const Object& object, std::string_view& out);
    bool isOrdered() const noexcept;
    std::uint64_t offset(std::uint64_t number) const noexcept {
        return this->number(tableAt_ + static_cast<std::size_t>(number) * offsetSize_, offsetSize_);
    }
    // Where the object behind it begins, in a file whose objects are in order.
    std::uint64_t next(std::uint64_t number) const noexcept {
        return number + 1 < objects_ ? offset(number + 1) : tableAt_;
    }

    bool fail(std::size_t at, std::string message) {
        error_ = contents_.errorAt(at, std::move(message));
        return false;
    }
    std::uint8_t byte(std::size_t at) const noexcept { return static_cast<std::uint8_t>(bytes_[at]); }
    // `size` is 1 to 8. No number stands closer than eight bytes to the file's end: the trailer's last is as long.
    std::uint64_t number(std::size_t at, std::size_t size) const noexcept {
        std::uint64_t value;
        std::memcpy(&value, bytes_.data() + at, sizeof value);
        if constexpr (std::endian::native == std::endian::little)
            value = __builtin_bswap64(value);
        return value >> (64 - 8 * size);
    }

    static constexpr std::size_t headerSize = 8;
    static constexpr std::size_t trailerSize = 32;

    Contents& contents_;
    std::string_view bytes_;
    std::size_t offsetSize_ = 0; // bytes of an offset
    std::size_t refSize_ = 0;    // bytes of an object's number where another names it
    std::uint64_t objects_ = 0;
    std::uint64_t top_ = 0;
    std::size_t tableAt_ = 0; // of the offsets; the objects end there
    // A string that several entries name is read once. Objects share no bytes, so all strings together are no longer
    // than the file: one whose strings overlap uses up `unread_` instead of memory and time without bound.
    // For each object, 2i + 1 if it was read as entry i's key, 2i + 2 as its text, leftOut + i as leftOutKeys_[i].
    std::vector<std::uint32_t> readAs_;
    static constexpr std::uint32_t leftOut = 0x80000000;
    std::vector<std::string_view> leftOutKeys_; // of entries whose value is no text
    std::size_t unread_;
    bool isOrdered_ = false; // the objects stand in the order of their numbers, as every writer known puts them
    Runtime::Error error_;
};

bool BinaryReader::trailer() {
    if (!bytes_.starts_with("bplist00"))
        return fail(headerSize - 2, "a binary property list of an unknown version");
    if (bytes_.size() < headerSize + trailerSize)
        return fail(bytes_.size(), "the file ends before its trailer");
    const std::size_t at = bytes_.size() - trailerSize;
    offsetSize_ = byte(at + 6);
    refSize_ = byte(at + 7);
    objects_ = number(at + 8, 8);
    top_ = number(at + 16, 8);
    const std::uint64_t tableAt = number(at + 24, 8);
    if (offsetSize_ < 1 || offsetSize_ > 8)
        return fail(at + 6, "offsets of " + std::to_string(offsetSize_) + " bytes");
    if (refSize_ < 1 || refSize_ > 8)
        return fail(at + 7, "references of " + std::to_string(refSize_) + " bytes");
    if (tableAt < headerSize || tableAt > at)
        return fail(at + 24, "the offset table lies outside of the file");
    tableAt_ = static_cast<std::size_t>(tableAt);
    // Each object takes a byte at least, and an offset in the table.
    if (objects_ > tableAt_ - headerSize || objects_ > (at - tableAt_) / offsetSize_)
        return fail(at + 8, std::to_string(objects_) + " objects do not fit into the file");
    return top_ < objects_ || fail(at + 16, "there is no object " + std::to_string(top_));
}

bool BinaryReader::table() {
    Object top;
    if (!object(top_, bytes_.size() - trailerSize + 16, top))
        return false;
    if (top.type != dictionary)
        return fail(top.at, "the table is no dictionary");
    if (!count(top))
        return false;
    if (top.count > (tableAt_ - top.begin) / refSize_ / 2)
        return fail(top.at, std::to_string(top.count) + " entries do not fit into the file");
    if (top.count > Table::maxEntries)
        return fail(top.at, tooManyEntries);
    const auto size = static_cast<std::size_t>(top.count);
    isOrdered_ = isOrdered() && top.begin + 2 * size * refSize_ <= next(top_);
    contents_.entries.reserve(size);
    readAs_.resize(static_cast<std::size_t>(objects_));
    for (std::size_t i = 0; i < size; ++i)
        if (!entry(top.begin + i * refSize_, top.begin + (size + i) * refSize_))
            return false;
    return true;
}

// The entry whose key and text are named at these places.
bool BinaryReader::entry(std::size_t keyAt, std::size_t textAt) {
    const std::uint64_t keyNumber = number(keyAt, refSize_), textNumber = number(textAt, refSize_);
    Object key, text;
    if (!object(keyNumber, keyAt, key) || !object(textNumber, textAt, text))
        return false;
    std::string_view keyString, textString;
    if (key.type != ascii && key.type != utf16)
        return fail(key.at, "a key is no string");
    if (!string(keyNumber, key, keyString))
        return false;
    if (text.type != ascii && text.type != utf16) {
        const char* const what = describe(text.type);
        if (!what)
            return fail(text.at, "an object of an unknown type");
        contents_.skipped(keyString, what, key.at);
        if (std::uint32_t& readAs = readAs_[static_cast<std::size_t>(keyNumber)]; readAs == 0) {
            readAs = leftOut + static_cast<std::uint32_t>(leftOutKeys_.size());
            leftOutKeys_.push_back(keyString);
        }
        return true;
    }
    if (textNumber == keyNumber)
        textString = keyString;
    else if (!string(textNumber, text, textString))
        return false;
    const auto role = static_cast<std::uint32_t>(2 * contents_.entries.size());
    readAs_[static_cast<std::size_t>(keyNumber)] = role + 1;
    readAs_[static_cast<std::size_t>(textNumber)] = role + 2;
    return contents_.add(keyString, textString, key.at) || fail(key.at, tooManyEntries);
}

// Object `number`, which is named at `namedAt`.
bool BinaryReader::object(std::uint64_t number, std::size_t namedAt, Object& out) {
    if (number >= objects_)
        return fail(namedAt, "there is no object " + std::to_string(number));
    const std::uint64_t at = offset(number);
    if (at < headerSize || at >= tableAt_)
        return fail(tableAt_ + static_cast<std::size_t>(number) * offsetSize_,
                    "an object lies outside of the objects' part of the file");
    out.at = static_cast<std::size_t>(at);
    out.type = byte(out.at) >> 4;
    out.count = byte(out.at) & 0xF;
    out.begin = out.at + 1;
    return true;
}

// Counts from fifteen on stand in a number object behind the marker.
bool BinaryReader::count(Object& object) {
    if (object.count < 0xF)
        return true;
    if (object.begin == tableAt_)
        return fail(object.at, "an object without its size");
    const std::uint8_t marker = byte(object.begin++);
    if (marker < 0x10 || marker > 0x13)
        return fail(object.begin - 1, "expected the size of an object");
    const std::size_t size = std::size_t{1} << (marker & 0xF);
    if (size > tableAt_ - object.begin)
        return fail(object.at, "an object without its size");
    object.count = number(object.begin, size);
    object.begin += size;
    return true;
}

// What object `number`, a string, says.
bool BinaryReader::string(std::uint64_t number, Object& object, std::string_view& out) {
    const std::uint32_t readAs = readAs_[static_cast<std::size_t>(number)];
    if (readAs >= leftOut) {
        out = leftOutKeys_[readAs - leftOut];
        return true;
    }
    if (readAs != 0) {
        const Entry& entry = contents_.entries[(readAs - 1) / 2];
        out = readAs % 2 != 0 ? entry.key : entry.text;
        return true;
    }
    if (!count(object))
        return false;
    const std::size_t unit = object.type == utf16 ? 2 : 1;
    if (object.count > (tableAt_ - object.begin) / unit)
        return fail(object.at, "a string reaches beyond the objects");
    out = bytes_.substr(object.begin, static_cast<std::size_t>(object.count) * unit);
    if (out.size() > unread_)
        return fail(object.at, "the strings together are longer than the file");
    unread_ -= out.size();
    if (isOrdered_ && object.begin + out.size() > next(number))
        return fail(object.at, "a string reaches into the next object");
    if (object.type == ascii) {
        const char* const end = out.data() + out.size();
        if (const char* const stop = skipAscii(out.data(), end); stop != end)
            return fail(static_cast<std::size_t>(stop - bytes_.data()), "a byte above 0x7F in an ASCII string");
        return true;
    }
    return decode(object, out);
}

// UTF-16 to UTF-8. Where no other object can lie, it takes the place of the UTF-16 if it is not longer: the first touch
// of fresh memory costs more than a copy.
bool BinaryReader::decode(const Object& object, std::string_view& out) {
    char* const room = contents_.arena.room(out.size() / 2 * 3);
    const Decoded decoded = decodeUtf16(out, ByteOrder::big, room);
    if (decoded.read != out.size())
        return fail(object.begin + decoded.read, "a lone surrogate in UTF-16");
    const std::string_view text(room, static_cast<std::size_t>(decoded.end - room));
    if (!isOrdered_ || text.size() > out.size()) {
        out = contents_.arena.keep(decoded.end);
        return true;
    }
    text.copy(contents_.source.data() + object.begin, text.size());
    out = bytes_.substr(object.begin, text.size());
    return true;
}

// Whether every object begins behind the one with the number before.
bool BinaryReader::isOrdered() const noexcept {
    std::uint64_t before = 0;
    for (std::uint64_t i = 0; i < objects_; ++i)
        if (const std::uint64_t at = offset(i); std::exchange(before, at) >= at)
            return false;
    return true;
}

} // namespace

Runtime::Result<void> readBinary(Contents& contents) {
    return BinaryReader(contents).read();
}

} // namespace StringTables::internal
