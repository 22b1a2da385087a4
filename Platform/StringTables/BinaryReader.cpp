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
    // A string that several entries name is read once: for each object, 2i + 1 if it is entry i's key, 2i + 2 if it is
    // only known as entry i's text.
    std::vector<std::uint32_t> readAs_;
    std::vector<std::size_t> replaced_; // entries whose key object a later entry names again
};

bool BinaryReader::table() {
    Object top;
    if (!objects_.top(top))
        return false;
    const auto size = static_cast<std::size_t>(top.count);
    contents_.entries.reserve(size);
    readAs_.resize(static_cast<std::size_t>(objects_.size()));
    for (std::size_t i = 0; i < size; ++i)
        if (!entry(objects_.keyAt(top, i), objects_.valueAt(top, i)))
            return false;
    removeReplaced();
    return true;
}

// A compiled table is read by its dictionary here and by its index in a bundle: both must say the same.
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
    if (index.front() > contents_.source.size() || index.entries() != contents_.entries.size())
        return objects_.fail(at, "the table's index is another table's");
    const CompiledTable table(contents_.source.substr(0, index.front()), index);
    for (const Entry& entry : contents_.entries)
        if (const std::string_view text = table.find(entry.key, keyHash(entry.key));
            text.data() == nullptr || text != entry.text)
            return objects_.fail(entry.offset, "the table's index contradicts the entry " + quoted(entry.key));
    return true;
}

// The entry whose key and text are named at these places.
bool BinaryReader::entry(std::size_t keyAt, std::size_t textAt) {
    const std::uint64_t keyNumber = objects_.reference(keyAt), textNumber = objects_.reference(textAt);
    Object key, text;
    if (!objects_.object(keyNumber, keyAt, key) || !objects_.object(textNumber, textAt, text))
        return false;
    std::string_view keyString, textString;
    if (!key.isString())
        return objects_.fail(key.at, "a key is no string");
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
    std::uint32_t& key = readAs_[static_cast<std::size_t>(keyNumber)];
    std::uint32_t& text = readAs_[static_cast<std::size_t>(textNumber)];
    const auto number = static_cast<std::uint32_t>(contents_.entries.size());
    if (key % 2 != 0) {
        replaced_.push_back((key - 1) / 2);
        contents_.noteReplaced(contents_.entries[replaced_.back()], entry);
    }
    key = 2 * number + 1;
    if (text == 0 && hasText(entry))
        text = 2 * number + 2;
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

// What object `number`, a string, says.
bool BinaryReader::string(std::uint64_t number, Object& object, std::string_view& out) {
    const std::uint32_t readAs = readAs_[static_cast<std::size_t>(number)];
    if (readAs != 0) {
        const Entry& entry = contents_.entries[(readAs - 1) / 2];
        out = readAs % 2 != 0 ? entry.key : entry.text;
        return true;
    }
    return objects_.string(number, object, out);
}

} // namespace

Runtime::Result<void> readBinary(Contents& contents) {
    return BinaryReader(contents).read();
}

} // namespace StringTables::internal
