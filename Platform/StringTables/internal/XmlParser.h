// StringTables/internal/XmlParser.h
// Parsing of XML by expat, which is in the plug-in lumora-xml.so: compiled bundles hold no XML. Tools have no plug-in
// beside them and link the parser itself. Both sides of the plug-in are built together.
// Text: handlers get UTF-8, whatever the encoding of the source; it is valid during the call only.
// Threads: any; a parser is used by its caller alone.
#pragma once

#include "Runtime/Export.h"
#include "Runtime/internal/Result.h"
#include <cstddef>
#include <string>
#include <string_view>

namespace StringTables::internal {

struct Contents;

// Bytes of the source: the tag or the comment that is handled.
struct XmlPlace {
    std::size_t begin;
    std::size_t end;
};

// What a document contains, in its order. A function that returns a text stops the parser with that error.
class XmlHandler {
public:
    // `attributes` are names and values in turn, null behind the last.
    virtual std::string open(const char* name, const char* const* attributes, XmlPlace place) = 0;
    virtual std::string close(XmlPlace place) = 0;
    // A text may come in pieces.
    virtual std::string characters(std::string_view piece) = 0;
    virtual void comment(std::string_view, XmlPlace) {}
    virtual void encoding(std::string_view /*declared*/) {}

protected:
    ~XmlHandler() = default;
};

// Errors with line and column: not well-formed; an entity is declared (without that none can grow or reach outside) or
// unknown; the handler's own. Without a place: no plug-in (names its file; may be transient). Throws std::bad_alloc and
// what the handler throws.
[[nodiscard]] Runtime::Result<void> parseXml(const Contents& contents, XmlHandler& handler);

struct XmlFault {
    std::string message; // empty: the source was read to its end
    std::size_t offset = 0;
    std::string entity{}; // whose name the message is about
};
// Parses `source` from `begin` on. It is UTF-8 for certain, or in the encoding that it declares.
using XmlParser = XmlFault(std::string_view source, std::size_t begin, bool isUtf8, XmlHandler& handler);
XmlParser parseByExpat;

// The parser that this object links, or the plug-in's. The platform and the tools link different definitions.
[[nodiscard]] Runtime::Result<XmlParser*> xmlParser();

} // namespace StringTables::internal

// The one function that the plug-in exports.
extern "C" LUMORA_EXPORT StringTables::internal::XmlParser* lumoraXml() noexcept;
