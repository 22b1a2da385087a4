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

// The strings that are not ASCII, each stored once.
class Utf8Strings {
public:
    explicit Utf8Strings(std::size_t begin) : begin_(begin) {}

    // The offset in the file of string `number` in UTF-8.
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
    BinaryWriter list;
    const auto indexObject = list.reserve();
    const auto addStrings = [&](bool ascii) {
        for (const Entry& entry : entries)
            for (const std::string_view string : {entry.key, entry.text})
                if (isAscii(string) == ascii)
                    list.string(string);
    };
    addStrings(true);
    const auto dictionary = list.dictionary();
    addStrings(false);
    Utf8Strings utf8(index.stringsAt());
    for (const Entry& entry : entries) {
        list.add(dictionary, list.string(entry.key), list.string(entry.text));
        for (const std::string_view string : {entry.key, entry.text})
            if (!isAscii(string))
                utf8.at(list.string(string), string);
    }
    list.setReserved(indexObject, index.objectSize(utf8.bytes().size()));
    std::string bytes = list.write();

    const auto offsetOf = [&](std::string_view string) {
        const auto number = list.string(string);
        return static_cast<std::uint32_t>(isAscii(string) ? list.charactersAt(number) : utf8.at(number, string));
    };
    std::vector<CompiledIndex::Slot> slots;
    for (std::size_t i = 0; i < entries.size(); ++i) {
        const auto& [key, text, offset] = entries[i];
        slots.push_back({.keyAt = offsetOf(key),
                         .keySize = static_cast<std::uint32_t>(key.size()),
                         .textAt = offsetOf(text),
                         .textSize = static_cast<std::uint32_t>(text.size()),
                         .check = CompiledIndex::check(hashes[i], text)});
    }
    index.write(bytes, list.offset(dictionary), utf8.bytes(), slots);
    return bytes;
}

} // namespace

Runtime::Result<std::string> writeCompiled(std::span<const Entry> entries) {
    auto plain = write(entries, Form::binary);
    if (!plain || sizeOf(entries) > 2 * plain->size())
        return plain;
    std::vector<std::uint64_t> hashes;
    for (const Entry& entry : entries)
        hashes.push_back(Runtime::keyHash(entry.key));
    const auto index = CompiledIndexWriter::make(hashes);
    if (!index)
        return plain;
    std::string bytes = writeIndexed(entries, hashes, *index);
    if (auto fits = checkWrittenSize(bytes.size()); !fits)
        return std::move(fits.error());
    return bytes;
}

} // namespace StringTables
