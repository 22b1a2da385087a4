// Exchange/Xml.h
// An XML document as a tree of elements with their positions, for reading and in-place editing.
// Text: UTF-8. Threads: plain values.
#pragma once

#include "Runtime/internal/Result.h"
#include "StringTables/internal/Table.h"
#include <cstddef>
#include <memory>
#include <string>
#include <string_view>
#include <utility>
#include <vector>

namespace Exchange {

// An element, or a text inside an element; a text has an empty name.
struct XmlNode {
    std::string name; // without a namespace's prefix
    std::vector<std::pair<std::string, std::string>> attributes;
    std::vector<XmlNode> children;
    std::string text; // empty for an element

    // Offsets in the document: of the element with its tags, and of its content. The content of <a/> is empty
    // and at `end`. All are 0 for a text.
    std::size_t begin = 0, contentBegin = 0, contentEnd = 0, end = 0;

    bool isElement() const noexcept { return !name.empty(); }
    // The value of the attribute `wanted`, or null.
    [[nodiscard]] const std::string* attribute(std::string_view wanted) const;
    // The first child with that name, or null.
    [[nodiscard]] const XmlNode* child(std::string_view wanted) const;
    // All texts within the element and its descendants, concatenated.
    [[nodiscard]] std::string allText() const;
};

class XmlDocument {
public:
    // Reads a document in UTF-8, in UTF-16 or in the encoding that it declares; UTF-16 is converted to UTF-8, and
    // offsets refer to the converted document. Errors: not well-formed, an entity declaration, nested deeper than
    // maxDepth, larger than Table::maxBytes.
    [[nodiscard]] static Runtime::Result<XmlDocument> read(std::string bytes);
    static constexpr std::size_t maxDepth = 128;

    XmlDocument(XmlDocument&&) noexcept;
    XmlDocument& operator=(XmlDocument&&) noexcept;
    ~XmlDocument();

    [[nodiscard]] const XmlNode& root() const noexcept { return root_; }
    // The line of an offset, counted from 1. Offsets must not decrease between calls.
    [[nodiscard]] std::size_t lineOf(std::size_t offset);
    // Whether the document has another encoding than UTF-8 and UTF-16. Then offsets refer to its bytes as they are.
    [[nodiscard]] bool hasOtherEncoding() const noexcept { return hasOtherEncoding_; }

private:
    struct Reader;
    struct Source;
    XmlDocument();

    std::unique_ptr<Source> source_;
    XmlNode root_;
    bool hasOtherEncoding_ = false;
};

// Escapes `text` as an attribute value.
[[nodiscard]] std::string xmlAttribute(std::string_view text);

} // namespace Exchange
