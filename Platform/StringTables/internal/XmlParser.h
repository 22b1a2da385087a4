// StringTables/internal/XmlParser.h
// Parses XML with expat. The platform loads expat with the plug-in lumora-xml.so, because a compiled bundle has no XML,
// except perhaps an Info.plist that was copied from the source; tools link expat directly. Library and plug-in are
// always built together, so they can share C++ classes.
// Text: handlers get UTF-8, whatever the encoding of the source; it is valid during the call only.
// Threads: any; no shared state.
#pragma once

#include "Runtime/Export.h"
#include "Runtime/internal/Result.h"
#include <cstddef>
#include <string>
#include <string_view>

namespace StringTables::internal {

struct Contents;

// The byte range of the current tag or comment, as offsets from the beginning of the source. For `<a/>`, close() gets
// the empty range after the tag.
struct XmlPlace {
    std::size_t begin;
    std::size_t end;
};

// Receives the content of a document in order. A non-empty result is an error message that stops the parser.
class XmlHandler {
public:
    // `attributes` alternates names and values and ends with a null pointer.
    virtual std::string open(const char* name, const char* const* attributes, XmlPlace place) = 0;
    virtual std::string close(XmlPlace place) = 0;
    // A text may be passed in several pieces.
    virtual std::string characters(std::string_view piece) = 0;
    virtual void comment(std::string_view, XmlPlace) {}
    // The encoding in the XML declaration, or an empty text if it has none. Not called without a declaration.
    virtual void encoding(std::string_view) {}

protected:
    ~XmlHandler() = default;
};

// Requires contents that recognize() found to be XML. Errors with line and column: not well-formed; an entity
// declaration (refused to prevent entity expansion and external references) or an unknown entity; errors of the
// handler. A plug-in that cannot be loaded is an error without line and column that names the plug-in's file, and may
// be transient. Throws std::bad_alloc and exceptions of the handler.
[[nodiscard]] Runtime::Result<void> parseXml(const Contents& contents, XmlHandler& handler);

struct XmlFault {
    std::string message;    // empty on success
    std::size_t offset = 0; // of the fault, from the beginning of the source
    std::string entity{};   // if not empty, the name of an entity that parseXml() appends to the message
};
// The type of a function that parses `source` from `begin` on. With `isUtf8` the source is UTF-8, otherwise it has the
// encoding that it declares.
using XmlParser = XmlFault(std::string_view source, std::size_t begin, bool isUtf8, XmlHandler& handler);
XmlParser parseByExpat; // declares a function of that type

// The linked parser, or that of the plug-in: the platform and the tools link different definitions of this function.
[[nodiscard]] Runtime::Result<XmlParser*> xmlParser();

} // namespace StringTables::internal

// The only function that the plug-in exports.
extern "C" LUMORA_EXPORT StringTables::internal::XmlParser* lumoraXml() noexcept;
