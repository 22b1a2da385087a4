// Writes compiled tables: a binary property list with an index.
#include "StringTables/internal/BinaryWriter.h"
#include "StringTables/internal/CompiledIndex.h"
#include "StringTables/internal/Scan.h"
#include "StringTables/internal/Writer.h"

namespace StringTables {

namespace {

using internal::BinaryWriter;
using internal::CompiledIndex;
using internal::CompiledIndexWriter;
using internal::isAscii;

// The UTF-8 copy of the strings that are not ASCII, each stored once.
class Utf8Copy {
public:
    explicit Utf8Copy(std::size_t begin) : begin_(begin) {}

    // The offset in the file of the copy of string `number`, which is made by the first call.
    std::size_t at(BinaryWriter::Number number, std::string_view text) {
        const auto [known, isNew] = places_.try_emplace(number, begin_ + bytes_.size());
        if (isNew)
            bytes_ += text;
        return known->second;
    }
    const std::string& bytes() const noexcept { return bytes_; }

private:
    std::size_t begin_;
    std::string bytes_;
    std::unordered_map<BinaryWriter::Number, std::size_t> places_;
};

// `index` was made from `hashes`, the key hashes of the entries.
std::string writeIndexed(std::span<const Entry> entries, std::span<const std::uint64_t> hashes,
                         const CompiledIndexWriter& index) {
    BinaryWriter writer(2 * entries.size());
    const auto dataObject = writer.reserve();
    struct Numbers {
        BinaryWriter::Number key, text;
    };
    std::vector<Numbers> numbers(entries.size());
    const auto addStrings = [&](bool ascii) { // those that are ASCII, or the others
        for (std::size_t i = 0; i < entries.size(); ++i) {
            if (isAscii(entries[i].key) == ascii)
                numbers[i].key = writer.string(entries[i].key);
            if (isAscii(entries[i].text) == ascii)
                numbers[i].text = writer.string(entries[i].text);
        }
    };
    // The ASCII strings belong to the front, before the dictionary; the UTF-16 strings do not (CompiledIndex.h).
    addStrings(true);
    const auto dictionary = writer.dictionary();
    addStrings(false);
    Utf8Copy copy(index.copyAt()); // filled before write(), because the size of the data object depends on it
    for (std::size_t i = 0; i < entries.size(); ++i) {
        writer.add(dictionary, numbers[i].key, numbers[i].text);
        if (!isAscii(entries[i].key))
            copy.at(numbers[i].key, entries[i].key);
        if (!isAscii(entries[i].text))
            copy.at(numbers[i].text, entries[i].text);
    }
    writer.setReservedSize(dataObject, index.objectSize(copy.bytes().size()));
    std::string bytes = writer.write();

    const auto offsetOf = [&](BinaryWriter::Number number, std::string_view string) {
        return static_cast<std::uint32_t>(isAscii(string) ? writer.charactersAt(number) : copy.at(number, string));
    };
    std::vector<CompiledIndex::Slot> slots;
    for (std::size_t i = 0; i < entries.size(); ++i) {
        const auto& [key, text, offset] = entries[i];
        slots.push_back({.keyAt = offsetOf(numbers[i].key, key),
                         .keySize = static_cast<std::uint32_t>(key.size()),
                         .textAt = offsetOf(numbers[i].text, text),
                         .textSize = static_cast<std::uint32_t>(text.size()),
                         .check = CompiledIndex::check(hashes[i], text)});
    }
    index.write(bytes, writer.offset(dictionary), copy.bytes(), slots);
    return bytes;
}

} // namespace

Runtime::Result<std::string> writeCompiled(std::span<const Entry> entries) {
    auto plain = write(entries, Form::binary);
    if (!plain)
        return plain;
    // Readers could take such a table for damaged, because so many entries share texts. The limit is lower than
    // mostTextPerFront, because the front may be smaller than `plain`.
    if (sizeOf(entries) > 2 * plain->size())
        return plain;
    std::vector<std::uint64_t> hashes;
    for (const Entry& entry : entries)
        hashes.push_back(Runtime::keyHash(entry.key));
    const auto index = CompiledIndexWriter::make(hashes);
    if (!index)
        return plain;
    std::string bytes = writeIndexed(entries, hashes, *index);
    return checkWrittenSize(bytes.size()) ? std::move(bytes) : std::move(plain);
}

} // namespace StringTables
