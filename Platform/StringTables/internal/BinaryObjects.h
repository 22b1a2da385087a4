// StringTables/internal/BinaryObjects.h
// The objects of a binary property list, each validated when it is read.
// The layout: "bplist00", the objects, a table of their offsets, and at the end the trailer that describes them. All
// numbers are big-endian.
#pragma once

#include "StringTables/internal/Contents.h"
#include <bit>
#include <cstring>
#include <string>
#include <utility>

namespace StringTables::internal {

class BinaryObjects {
public:
    enum Type : std::uint8_t { ascii = 0x5, utf16 = 0x6, dictionary = 0xD };

    struct Object {
        std::size_t at = 0;      // the offset of the marker byte
        std::uint8_t type = 0;   // the upper four bits of the marker byte
        std::uint64_t count = 0; // of bytes, UTF-16 units or entries; until it is read, the marker's lower four bits
        std::size_t begin = 0;   // where these begin

        bool isString() const noexcept { return type == ascii || type == utf16; }
    };

    explicit BinaryObjects(Contents& contents)
        : contents_(contents), bytes_(contents.source), unread_(contents.source.size()) {}

    // Reads the trailer; call this first. This and the other public functions that return bool return false on an
    // error, which error() then returns.
    bool open();
    Runtime::Error& error() noexcept { return error_; }

    std::uint64_t size() const noexcept { return objectCount_; } // the number of objects
    // The top-level dictionary, with its count.
    bool top(Object& out);
    // Object `number`; if there is none, the error's place is `referenceAt`. The count of a string or dictionary is
    // read by string() and members().
    bool object(std::uint64_t number, std::size_t referenceAt, Object& out);
    // Reads the count of object `number`, a dictionary, and checks that its references are in the file and that it has
    // at most Table::maxEntries entries.
    bool members(std::uint64_t number, Object& object);
    // The offsets of the references to the key and value of entry `i`, and the reference at an offset.
    std::size_t keyAt(const Object& object, std::size_t i) const noexcept { return object.begin + i * referenceSize_; }
    std::size_t valueAt(const Object& object, std::size_t i) const noexcept {
        return keyAt(object, static_cast<std::size_t>(object.count) + i);
    }
    std::uint64_t reference(std::size_t at) const noexcept { return number(at, referenceSize_); }
    // Reads object `number`, a string, as UTF-8 that lives as long as the contents. Callers read each object at most
    // once: the total size of all strings read is limited to the size of the file.
    bool string(std::uint64_t number, Object& object, std::string_view& out);

    bool fail(std::size_t at, std::string message) {
        error_ = contents_.errorAt(at, std::move(message));
        return false;
    }
    // What a value of that type is ("an array"), for notes; null for a string and an unknown type.
    static const char* describe(std::uint8_t type) noexcept;

private:
    bool readCount(Object& object);
    bool decode(const Object& object, std::string_view& out);
    bool isOrdered() const noexcept;
    std::uint64_t offset(std::uint64_t number) const noexcept {
        return this->number(tableAt_ + static_cast<std::size_t>(number) * offsetSize_, offsetSize_);
    }
    // The offset of what follows the object, in a file whose objects are in order.
    std::uint64_t next(std::uint64_t number) const noexcept {
        return number + 1 < objectCount_ ? offset(number + 1) : tableAt_;
    }
    std::uint8_t byte(std::size_t at) const noexcept { return static_cast<std::uint8_t>(bytes_[at]); }
    // `size` is 1 to 8. Reading eight bytes is always safe: the file ends with the trailer, whose last number has
    // eight bytes.
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
    std::size_t offsetSize_ = 0;    // bytes of an offset
    std::size_t referenceSize_ = 0; // bytes of a reference to an object
    std::uint64_t objectCount_ = 0;
    std::uint64_t top_ = 0;   // the number of the top-level object
    std::size_t tableAt_ = 0; // of the offset table, where the objects end
    // How many bytes of strings may still be read. In a valid file objects do not overlap, so all strings together are
    // shorter than the file; this limits time and memory for files whose strings do overlap.
    std::size_t unread_;
    // Whether the objects are in the order of their numbers, as usual writers store them. Then no string or dictionary
    // may reach into the next object.
    bool isOrdered_ = false;
    Runtime::Error error_;
};

} // namespace StringTables::internal
