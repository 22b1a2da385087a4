// StringTables/internal/PropertyListSink.h
// Receives what a property list contains, in its order, from the reader of either form.
// Text: UTF-8, valid during the call only.
#pragma once

#include "StringTables/internal/Contents.h"
#include <cstddef>
#include <string_view>

namespace StringTables::internal {

class PropertyListSink {
public:
    // Of the list itself and of every value that is a dictionary: whether its entries are wanted.
    virtual bool beginDictionary() = 0;
    // Of a dictionary whose entries were wanted.
    virtual void endDictionary() = 0;
    // Each key is followed by its value. Both return null, or why reading stops.
    virtual const char* key(std::string_view text, std::size_t offset) = 0;
    virtual const char* string(std::string_view text) = 0;
    // A value of another type: "an array". Nothing inside it is reported.
    virtual void other(const char* what) = 0;

protected:
    ~PropertyListSink() = default;
};

// Read the source of `contents` from `contents.begin` on. An error where it is damaged, or the sink stops.
[[nodiscard]] Runtime::Result<void> readBinary(Contents& contents, PropertyListSink& sink);
[[nodiscard]] Runtime::Result<void> readXml(Contents& contents, PropertyListSink& sink);

} // namespace StringTables::internal
