#include "StringTables/internal/XmlParser.h"

#include "StringTables/internal/Contents.h"

namespace StringTables::internal {

Runtime::Result<void> parseXml(const Contents& contents, XmlHandler& handler) {
    const auto parser = xmlParser();
    if (!parser) {
        const Runtime::Error& error = parser.error();
        // Keeps only transient causes: with ENOENT, a missing plug-in would be mistaken for a missing table.
        return Runtime::Error{.message = error.text(), .cause = error.isTransient() ? error.cause : 0};
    }
    const std::size_t begin = contents.source.find('<', contents.begin);
    const XmlFault fault = (*parser)(contents.source, begin, contents.isUtf8, handler);
    if (fault.message.empty())
        return {};
    return contents.errorAt(fault.offset, fault.entity.empty() ? fault.message : fault.message + quoted(fault.entity));
}

} // namespace StringTables::internal
