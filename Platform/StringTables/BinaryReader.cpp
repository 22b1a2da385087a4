// Reads a table of texts from a binary property list, in one pass over its dictionary.
#include "StringTables/internal/BinaryObjects.h"
#include "StringTables/internal/CompiledTable.h"

namespace StringTables::internal {

namespace {

class BinaryReader {
public:
    explicit BinaryReader(Contents& contents) : contents_(contents), objects_(contents) {}

    Runtime::Result<void> read() {
        if (!objects_.open() || !table() || !checkIndex())
            return std::move(objects_.error());
        return {};
    }

private:
    using Object = BinaryObjects::Object;

    bool table();
    bool checkIndex();
    bool entry(std::size_t keyAt, std::size_t textAt);
    bool keep(const Entry& entry, std::uint64_t keyNumber, std::uint64_t textNumber);
    void removeReplaced();
    bool string(std::uint64_t number, Object& object, std::string_view& out);

    Contents& contents_;
    BinaryObjects objects_;
    // For a string object: an entry that has it as key or text, so that a shared string is read once.
    struct StringUse {
        static constexpr std::uint32_t none = 0x7FFFFFFF; // the largest in 31 bits; also their mask
        std::uint32_t entry : 31 = none;
        std::uint32_t isKey : 1 = 0;
    };
    std::vector<StringUse> uses_;       // by the object's number
    std::vector<std::size_t> replaced_; // entries whose key object is the key of a later entry, too
};

bool BinaryReader::table() {
    Object top;
    if (!objects_.top(top))
        return false;
    const auto size = static_cast<std::size_t>(top.count);
    contents_.entries.reserve(size);
    uses_.resize(static_cast<std::size_t>(objects_.size()));
    for (std::size_t i = 0; i < size; ++i)
        if (!entry(objects_.keyAt(top, i), objects_.valueAt(top, i)))
            return false;
    removeReplaced();
    return true;
}

// Tools read a compiled table through its dictionary, a bundle reads it through its index: both must agree.
bool BinaryReader::checkIndex() {
    static constexpr std::size_t at = CompiledIndex::objectAt;
    CompiledIndex index;
    switch (CompiledIndex::recognizeFile(contents_.source, index)) {
    case CompiledIndex::State::none:
        return true;
    case CompiledIndex::State::damaged:
        return objects_.fail(at, "the table's index is damaged");
    case CompiledIndex::State::present:
        break;
    }
    if (index.frontSize() > contents_.source.size() || index.entryCount() != contents_.entries.size())
        return objects_.fail(at, "the table's index belongs to another table");
    const CompiledTable table(contents_.source.substr(0, index.frontSize()), index);
    for (const Entry& entry : contents_.entries)
        if (const auto found = table.find(entry.key, Runtime::keyHash(entry.key)); !found || found.text() != entry.text)
            return objects_.fail(entry.offset, "the table's index contradicts the entry " + quoted(entry.key));
    return true;
}

// Adds the entry whose key and text references are at these offsets.
bool BinaryReader::entry(std::size_t keyAt, std::size_t textAt) {
    const std::uint64_t keyNumber = objects_.reference(keyAt), textNumber = objects_.reference(textAt);
    Object key, text;
    if (!objects_.object(keyNumber, keyAt, key) || !objects_.object(textNumber, textAt, text))
        return false;
    std::string_view keyString, textString;
    if (!key.isString())
        return objects_.fail(key.at, "expected a string as key");
    if (!string(keyNumber, key, keyString))
        return false;
    if (!text.isString()) {
        const char* const what = BinaryObjects::describe(text.type);
        if (!what)
            return objects_.fail(text.at, "an object of an unknown type");
        contents_.noteSkipped(keyString, what, key.at);
        contents_.hasSkipped = true;
        textString = noText;
    } else if (textNumber == keyNumber) {
        textString = keyString;
    } else if (!string(textNumber, text, textString)) {
        return false;
    }
    return keep({keyString, textString, static_cast<std::uint32_t>(key.at)}, keyNumber, textNumber) ||
           objects_.fail(key.at, tooManyEntries);
}

// False when the table is full.
bool BinaryReader::keep(const Entry& entry, std::uint64_t keyNumber, std::uint64_t textNumber) {
    StringUse& key = uses_[static_cast<std::size_t>(keyNumber)];
    StringUse& text = uses_[static_cast<std::size_t>(textNumber)];
    const auto number = static_cast<std::uint32_t>(contents_.entries.size());
    if (key.isKey) {
        replaced_.push_back(key.entry);
        contents_.noteReplaced(contents_.entries[key.entry], entry);
    }
    key = {.entry = number & StringUse::none, .isKey = 1};
    if (text.entry == StringUse::none && hasText(entry))
        text.entry = number & StringUse::none;
    return contents_.add(entry.key, entry.text, entry.offset);
}

void BinaryReader::removeReplaced() {
    if (replaced_.empty())
        return;
    std::vector<bool> isReplaced(contents_.entries.size());
    for (const std::size_t number : replaced_)
        isReplaced[number] = true;
    std::size_t number = 0;
    std::erase_if(contents_.entries, [&](const Entry&) { return isReplaced[number++]; });
}

// The content of object `number`, a string. Reads it only if no entry has it yet.
bool BinaryReader::string(std::uint64_t number, Object& object, std::string_view& out) {
    const StringUse use = uses_[static_cast<std::size_t>(number)];
    if (use.entry != StringUse::none) {
        const Entry& entry = contents_.entries[use.entry];
        out = use.isKey ? entry.key : entry.text;
        return true;
    }
    return objects_.string(number, object, out);
}

} // namespace

Runtime::Result<void> readBinary(Contents& contents) {
    return BinaryReader(contents).read();
}

} // namespace StringTables::internal
