// Reads a table of texts from an XML property list.
#include "StringTables/internal/PropertyListSink.h"

namespace StringTables::internal {

namespace {

// Keeps the texts of the top-level dictionary; other values are skipped with a note.
class TableSink final : public PropertyListSink {
public:
    explicit TableSink(Contents& contents) : contents_(contents) {}

    bool beginDictionary() override {
        if (inTable_) {
            other("a dictionary");
            return false;
        }
        inTable_ = true;
        return true;
    }
    void endDictionary() override {}
    const char* key(std::string_view text, std::size_t offset) override {
        key_ = contents_.arena.copy(text);
        offset_ = offset;
        return nullptr;
    }
    const char* string(std::string_view text) override {
        return contents_.add(key_, contents_.arena.copy(text), offset_) ? nullptr : tooManyEntries;
    }
    void other(const char* what) override { contents_.addSkipped(key_, what, offset_); }

private:
    Contents& contents_;
    bool inTable_ = false;
    std::string_view key_;
    std::size_t offset_ = 0;
};

} // namespace

Runtime::Result<void> readXml(Contents& contents) {
    TableSink sink(contents);
    return readXml(contents, sink);
}

} // namespace StringTables::internal
