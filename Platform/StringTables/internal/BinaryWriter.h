// StringTables/internal/BinaryWriter.h
// Builds a binary property list of dictionaries, strings, and objects whose bytes the caller fills in.
// Text: takes UTF-8, stores ASCII or UTF-16. Threads: one at a time. Ownership: borrows its strings until write()
// returns.
#pragma once

#include "Runtime/internal/NameMap.h"
#include <cstddef>
#include <cstdint>
#include <optional>
#include <string>
#include <string_view>
#include <unordered_map>
#include <utility>
#include <vector>

namespace StringTables::internal {

class BinaryWriter {
public:
    // Objects are numbered and stored in the order in which they are created.
    using Number = std::size_t;

    // `strings`: how many are expected, which saves rehashing.
    explicit BinaryWriter(std::size_t strings = 0);

    // A new, empty dictionary. The first one is the top-level object.
    Number dictionary();
    // An object whose bytes the caller fills in: write() leaves zeros in its place, as many as setReservedSize() was
    // told.
    Number reserve();
    void setReservedSize(Number reserved, std::size_t size) { objects_[reserved].size = size; }
    // The string `text`; equal strings share one object. Repeated calls with the same memory do not read it again.
    Number string(std::string_view text);
    // Whether all strings are UTF-8. If not, do not call write().
    bool isUtf8() const noexcept { return isUtf8_; }
    // Adds an entry to a dictionary, even if it has one with that key already.
    void add(Number dictionary, Number key, Number value) { objects_[dictionary].entries.emplace_back(key, value); }

    // The bytes of the property list. Call it once.
    [[nodiscard]] std::string write();
    // After write(): the offset of an object, and that of the characters of an ASCII string.
    std::size_t offset(Number number) const noexcept { return offsets_[number]; }
    std::size_t charactersAt(Number number) const noexcept;

private:
    struct Object {
        enum class Kind { dictionary, string, reserved } kind;
        std::string_view text{};
        std::size_t size = 0; // of a reserved object
        std::vector<std::pair<Number, Number>> entries{};
    };

    void put(std::uint64_t number, std::size_t size); // big-endian
    void putMarker(unsigned type, std::size_t count);
    void putDictionary(const Object& object, std::size_t referenceSize);
    void putString(std::string_view text);

    std::vector<Object> objects_;
    std::optional<Number> top_;
    std::vector<std::size_t> offsets_;
    Runtime::NameMap<Number, std::string_view> strings_;
    struct Given {
        std::size_t size;
        Number number;
    };
    std::unordered_map<const char*, Given> given_; // strings by their address
    bool isUtf8_ = true;
    std::string out_;
};

} // namespace StringTables::internal
