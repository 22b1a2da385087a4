// StringTables/internal/PropertyListSink.h
// Receives the content of a property list in order, from the reader of either form, XML or binary.
// Text: UTF-8, valid during the call only.
#pragma once

#include "StringTables/internal/Contents.h"
#include <cstddef>
#include <string_view>

namespace StringTables::internal {

class PropertyListSink {
public:
    // Called first for the top-level dictionary (another value at the top is an error of the reader), then for every
    // value that is a dictionary. Returns whether to report its entries.
    virtual bool beginDictionary() = 0;
    // Called after the entries of a dictionary for which beginDictionary() returned true.
    virtual void endDictionary() = 0;
    // Each key is followed by its value. key() and string() return null, or an error message that stops the reader.
    virtual const char* key(std::string_view text, std::size_t offset) = 0;
    virtual const char* string(std::string_view text) = 0;
    // A value of another type, described by `what` ("an array"). Nothing inside it is reported.
    virtual void other(const char* what) = 0;

protected:
    ~PropertyListSink() = default;
};

// Each reads the source of `contents` from `contents.begin` on. Fails if it is damaged or the sink stops the reader.
[[nodiscard]] Runtime::Result<void> readBinary(Contents& contents, PropertyListSink& sink);
[[nodiscard]] Runtime::Result<void> readXml(const Contents& contents, PropertyListSink& sink);

} // namespace StringTables::internal
