#include "Exchange/TableDocument.h"

#include "Exchange/BinaryDocument.h"
#include "Exchange/CatalogDocument.h"
#include "Exchange/PropertyListDocument.h"
#include "Exchange/StringsDocument.h"
#include "Runtime/internal/File.h"
#include "SourceBundle/StringCatalog.h" // maxCatalogBytes
#include <utility>

namespace Exchange {

namespace {

using Kind = SourceBundle::TableFile::Kind;
using Read = Runtime::Result<std::unique_ptr<TableDocument>>;

template <class Document> Read asDocument(Runtime::Result<Document> document) {
    if (!document)
        return std::move(document.error());
    return std::unique_ptr<TableDocument>(std::make_unique<Document>(*std::move(document)));
}

Read readBytes(Kind kind, std::string bytes) {
    if (kind == Kind::catalog)
        return asDocument(CatalogDocument::read(std::move(bytes)));
    const bool isBinary = bytes.starts_with("bplist0"); // the readers reject unknown versions, such as "01"
    if (isBinary && kind == Kind::texts)
        return asDocument(BinaryTexts::read(std::move(bytes)));
    if (isBinary)
        return asDocument(BinaryPlurals::read(std::move(bytes)));
    auto decoded = DecodedText::of(bytes);
    if (!decoded)
        return std::move(decoded.error());
    const std::size_t first = decoded->text.find_first_not_of("\xEF\xBB\xBF \t\r\n");
    if (first != std::string::npos && decoded->text[first] == '<')
        return asDocument(PropertyListDocument::read(bytes));
    if (kind == Kind::texts)
        return asDocument(StringsDocument::read(*std::move(decoded)));
    // Source::read() accepts a plural table that is not a property list only if it is empty.
    return TableDocument::make(kind);
}

} // namespace

Read TableDocument::read(const SourceBundle::TableFile& file) {
    // The limit of the largest kind; the readers check those of the others.
    auto bytes = Runtime::readFile(file.path, SourceBundle::maxCatalogBytes);
    if (!bytes)
        return std::move(bytes.error());
    auto document = readBytes(file.kind, *std::move(bytes));
    if (!document)
        document.error().file = file.path;
    return document;
}

std::unique_ptr<TableDocument> TableDocument::make(Kind kind) {
    constexpr const char* emptyList = "<?xml version=\"1.0\" encoding=\"UTF-8\"?>\n"
                                      "<plist version=\"1.0\">\n<dict>\n</dict>\n</plist>\n";
    auto document = kind == Kind::plurals ? asDocument(PropertyListDocument::read(emptyList))
                                          : asDocument(StringsDocument::read({}));
    return *std::move(document);
} // NOLINT(clang-analyzer-cplusplus.NewDeleteLeaks): the result owns the document

} // namespace Exchange
