#include "StringTables/internal/BinaryObjects.h"

#include "StringTables/internal/Scan.h"
#include "StringTables/internal/Unicode.h"

namespace StringTables::internal {

const char* BinaryObjects::describe(std::uint8_t type) noexcept {
    constexpr const char* names[16] = {"a boolean", "a number", "a number", "a date",      "data",
                                       nullptr,     nullptr,    nullptr,    "a reference", nullptr,
                                       "an array",  "a set",    "a set",    "a dictionary"};
    return names[type];
}

bool BinaryObjects::open() {
    if (!bytes_.starts_with("bplist00")) // the version is the two digits
        return fail(headerSize - 2, "a binary property list of an unknown version");
    if (bytes_.size() < headerSize + trailerSize)
        return fail(bytes_.size(), "the file ends before its trailer");
    const std::size_t at = bytes_.size() - trailerSize;
    offsetSize_ = byte(at + 6);
    referenceSize_ = byte(at + 7);
    objectCount_ = number(at + 8, 8);
    top_ = number(at + 16, 8);
    const std::uint64_t tableAt = number(at + 24, 8);
    if (offsetSize_ < 1 || offsetSize_ > 8)
        return fail(at + 6, "offsets of " + std::to_string(offsetSize_) + " bytes");
    if (referenceSize_ < 1 || referenceSize_ > 8)
        return fail(at + 7, "references of " + std::to_string(referenceSize_) + " bytes");
    if (tableAt < headerSize || tableAt > at)
        return fail(at + 24, "the offset table is outside of the file");
    tableAt_ = static_cast<std::size_t>(tableAt);
    // Each object takes at least one byte, and an offset in the table.
    if (objectCount_ > tableAt_ - headerSize || objectCount_ > (at - tableAt_) / offsetSize_)
        return fail(at + 8, std::to_string(objectCount_) + " objects do not fit into the file");
    return top_ < objectCount_ || fail(at + 16, "there is no object " + std::to_string(top_));
}

bool BinaryObjects::top(Object& out) {
    if (!object(top_, bytes_.size() - trailerSize + 16, out))
        return false;
    if (out.type != dictionary)
        return fail(out.at, "expected a dictionary at the top of the table");
    isOrdered_ = isOrdered();
    return members(top_, out);
}

bool BinaryObjects::object(std::uint64_t number, std::size_t referenceAt, Object& out) {
    if (number >= objectCount_)
        return fail(referenceAt, "there is no object " + std::to_string(number));
    const std::uint64_t at = offset(number);
    if (at < headerSize || at >= tableAt_)
        return fail(tableAt_ + static_cast<std::size_t>(number) * offsetSize_,
                    "an object is outside of the object area of the file");
    out.at = static_cast<std::size_t>(at);
    out.type = byte(out.at) >> 4;
    out.count = byte(out.at) & 0xF;
    out.begin = out.at + 1;
    return true;
}

bool BinaryObjects::members(std::uint64_t number, Object& object) {
    if (!readCount(object))
        return false;
    if (object.count > (tableAt_ - object.begin) / referenceSize_ / 2)
        return fail(object.at, std::to_string(object.count) + " entries do not fit into the file");
    if (isOrdered_ && valueAt(object, static_cast<std::size_t>(object.count)) > next(number))
        return fail(object.at, "a dictionary reaches into the next object");
    return object.count <= Table::maxEntries || fail(object.at, tooManyEntries);
}

// A count of 15 or more is stored in a number object after the marker.
bool BinaryObjects::readCount(Object& object) {
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

bool BinaryObjects::string(std::uint64_t number, Object& object, std::string_view& out) {
    if (!readCount(object))
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

// Decodes UTF-16 into free space of the arena. If the UTF-8 is not longer and no other object can overlap, it is then
// copied over the UTF-16, so that the next string uses that space again: touching fresh memory costs more than a copy.
bool BinaryObjects::decode(const Object& object, std::string_view& out) {
    char* const bytes = contents_.arena.reserve(out.size() / 2 * 3);
    const Decoded decoded = decodeUtf16(out, ByteOrder::big, bytes);
    if (decoded.read != out.size())
        return fail(object.begin + decoded.read, "a lone surrogate in UTF-16");
    const std::string_view text(bytes, static_cast<std::size_t>(decoded.end - bytes));
    if (!isOrdered_ || text.size() > out.size()) {
        out = contents_.arena.keep(decoded.end);
        return true;
    }
    text.copy(contents_.source.data() + object.begin, text.size());
    out = bytes_.substr(object.begin, text.size());
    return true;
}

// Whether the objects are in the file in the order of their numbers.
bool BinaryObjects::isOrdered() const noexcept {
    for (std::uint64_t i = 1; i < objectCount_; ++i)
        if (offset(i - 1) >= offset(i))
            return false;
    return true;
}

} // namespace StringTables::internal
