#include "StringTables/internal/BinaryWriter.h"

#include "StringTables/internal/Scan.h"
#include "StringTables/internal/Unicode.h"
#include <algorithm>
#include <bit>

namespace StringTables::internal {

namespace {

// The fewest of 1, 2, 4, 8 bytes that hold `number`.
std::size_t bytesFor(std::size_t number) noexcept {
    const auto bits = static_cast<std::size_t>(std::bit_width(number));
    return std::bit_ceil(std::max<std::size_t>((bits + 7) / 8, 1));
}

} // namespace

BinaryWriter::BinaryWriter(std::size_t strings) {
    objects_.reserve(strings);
    strings_.reserve(strings);
    given_.reserve(strings);
}

BinaryWriter::Number BinaryWriter::dictionary() {
    objects_.push_back({.kind = Object::Kind::dictionary});
    top_ = top_.value_or(objects_.size() - 1);
    return objects_.size() - 1;
}

BinaryWriter::Number BinaryWriter::reserve() {
    objects_.push_back({.kind = Object::Kind::reserved});
    return objects_.size() - 1;
}

BinaryWriter::Number BinaryWriter::string(std::string_view text) {
    const auto given = given_.find(text.data());
    if (given != given_.end() && given->second.size == text.size())
        return given->second.number;
    isUtf8_ = isUtf8_ && internal::isUtf8(text);
    const auto [at, isNew] = strings_.try_emplace(text, objects_.size());
    if (isNew)
        objects_.push_back({.kind = Object::Kind::string, .text = text});
    given_.insert_or_assign(text.data(), Given{text.size(), at->second});
    return at->second;
}

std::size_t BinaryWriter::charactersAt(Number number) const noexcept {
    const std::size_t size = objects_[number].text.size();
    return offset(number) + (size < 0xF ? 1 : 2 + bytesFor(size));
}

// The header, the objects, the table of their offsets, and the trailer.
std::string BinaryWriter::write() {
    const std::size_t referenceSize = bytesFor(objects_.size() - 1);
    out_ = "bplist00";
    for (const Object& object : objects_) {
        offsets_.push_back(out_.size());
        switch (object.kind) {
        case Object::Kind::dictionary:
            putDictionary(object, referenceSize);
            break;
        case Object::Kind::string:
            putString(object.text);
            break;
        case Object::Kind::reserved:
            out_.append(object.size, '\0');
            break;
        }
    }
    const std::size_t tableAt = out_.size(), offsetSize = bytesFor(tableAt);
    for (const std::size_t offset : offsets_)
        put(offset, offsetSize);
    put(0, 6); // unused bytes of the trailer
    put(offsetSize, 1);
    put(referenceSize, 1);
    put(objects_.size(), 8);
    put(top_.value_or(0), 8);
    put(tableAt, 8);
    return std::move(out_);
}

void BinaryWriter::put(std::uint64_t number, std::size_t size) {
    while (size-- > 0)
        out_ += static_cast<char>(number >> 8 * size & 0xFF);
}

// An object's type and count. A count of 15 or more follows as a number object, whose type is 1.
void BinaryWriter::putMarker(unsigned type, std::size_t count) {
    if (count < 0xF) {
        put(type << 4 | count, 1);
        return;
    }
    const std::size_t size = bytesFor(count);
    put(type << 4 | 0xF, 1);
    put(0x10u | static_cast<unsigned>(std::countr_zero(size)), 1);
    put(count, size);
}

void BinaryWriter::putDictionary(const Object& object, std::size_t referenceSize) {
    putMarker(0xD, object.entries.size());
    for (const auto& [key, value] : object.entries)
        put(key, referenceSize);
    for (const auto& [key, value] : object.entries)
        put(value, referenceSize);
}

void BinaryWriter::putString(std::string_view text) {
    if (isAscii(text)) {
        putMarker(0x5, text.size());
        out_ += text;
        return;
    }
    const std::u16string units = toUtf16(text);
    putMarker(0x6, units.size());
    for (const char16_t unit : units)
        put(unit, 2);
}

} // namespace StringTables::internal
