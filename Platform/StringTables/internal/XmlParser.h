// StringTables/internal/XmlParser.h
// Parses XML with expat. The parser is in the plug-in lumora-xml.so, because compiled bundles contain no XML; tools
// link the parser directly instead. Library and plug-in are always built together.
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

// The byte range of the current tag or comment in the source.
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
    virtual void encoding(std::string_view /*declared*/) {}

protected:
    ~XmlHandler() = default;
};

// Errors with line and column: not well-formed; an entity declaration (refused to prevent entity expansion and external
// references) or an unknown entity; errors of the handler. Error without a location: no plug-in (names its file; may be
// transient). Throws std::bad_alloc and exceptions of the handler.
[[nodiscard]] Runtime::Result<void> parseXml(const Contents& contents, XmlHandler& handler);

struct XmlFault {
    std::string message; // empty on success
    std::size_t offset = 0;
    std::string entity{}; // the entity's name, if the message is about one
};
// Parses `source` from `begin` on. With `isUtf8` the source is UTF-8, otherwise it has the encoding that it declares.
using XmlParser = XmlFault(std::string_view source, std::size_t begin, bool isUtf8, XmlHandler& handler);
XmlParser parseByExpat;

// The linked parser, or that of the plug-in: the platform and the tools link different definitions of this function.
[[nodiscard]] Runtime::Result<XmlParser*> xmlParser();

} // namespace StringTables::internal

// The only function that the plug-in exports.
extern "C" LUMORA_EXPORT StringTables::internal::XmlParser* lumoraXml() noexcept;
