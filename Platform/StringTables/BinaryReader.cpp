#include "StringTables/internal/BinaryObjects.h"

namespace StringTables::internal {

namespace {

class BinaryReader {
public:
    explicit BinaryReader(Contents& contents) : contents_(contents), objects_(contents) {}

    Runtime::Result<void> read() {
        if (!objects_.open() || !table())
            return std::move(objects_.error());
        return {};
    }

private:
    using Object = BinaryObjects::Object;

    bool table();
    bool entry(std::size_t keyAt, std::size_t textAt);
    bool string(std::uint64_t number, Object& object, std::string_view& out);

    Contents& contents_;
    BinaryObjects objects_;
    // A string that several entries name is read once.
    // For each object, 2i + 1 if it was read as entry i's key, 2i + 2 as its text, leftOut + i as leftOutKeys_[i].
    std::vector<std::uint32_t> readAs_;
    static constexpr std::uint32_t leftOut = 0x80000000;
    std::vector<std::string_view> leftOutKeys_; // of entries whose value is no text
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
    return contents_.add(keyString, textString, key.at) || objects_.fail(key.at, tooManyEntries);
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
    return objects_.string(number, object, out);
}

} // namespace

Runtime::Result<void> readBinary(Contents& contents) {
    return BinaryReader(contents).read();
}

} // namespace StringTables::internal
