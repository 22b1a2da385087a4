#include "Exchange/Xml.h"

#include "SourceBundle/LowerCase.h"
#include "StringTables/internal/Contents.h"
#include "StringTables/internal/XmlParser.h"
#include "StringTables/internal/XmlText.h"
#include <algorithm>
#include <optional>

namespace Exchange {

using StringTables::internal::Contents;
using StringTables::internal::Locator;

struct XmlDocument::Source {
    explicit Source(std::string bytes) : contents(std::move(bytes)) {}
    Contents contents;
    std::optional<Locator> locator;
};

XmlDocument::XmlDocument() = default;
XmlDocument::XmlDocument(XmlDocument&&) noexcept = default;
XmlDocument& XmlDocument::operator=(XmlDocument&&) noexcept = default;
XmlDocument::~XmlDocument() = default;

const std::string* XmlNode::attribute(std::string_view wanted) const {
    const auto found =
        std::ranges::find(attributes, wanted, [](const auto& each) { return std::string_view(each.first); });
    return found == attributes.end() ? nullptr : &found->second;
}

const XmlNode* XmlNode::child(std::string_view wanted) const {
    const auto found = std::ranges::find(children, wanted, &XmlNode::name);
    return found == children.end() ? nullptr : &*found;
}

std::string XmlNode::allText() const {
    std::string all = text;
    for (const XmlNode& child : children)
        all += child.allText();
    return all;
}

struct XmlDocument::Reader final : StringTables::internal::XmlHandler {
    using XmlPlace = StringTables::internal::XmlPlace;

    std::string open(const char* name, const char* const* attributes, XmlPlace place) override {
        if (openElements.size() == maxDepth)
            return StringTables::internal::nestedTooDeeply;
        XmlNode& node = openElements.emplace_back();
        const std::string_view full = name;
        node.name = full.substr(full.rfind(':') + 1); // all of it without a colon, because npos + 1 is 0
        for (; *attributes != nullptr; attributes += 2)
            node.attributes.emplace_back(attributes[0], attributes[1]);
        node.begin = place.begin;
        node.contentBegin = place.end;
        return {};
    }

    std::string close(XmlPlace place) override {
        XmlNode node = std::move(openElements.back());
        openElements.pop_back();
        node.contentEnd = place.begin;
        node.end = place.end;
        if (openElements.empty())
            root = std::move(node);
        else
            openElements.back().children.push_back(std::move(node));
        return {};
    }

    std::string characters(std::string_view piece) override {
        auto& siblings = openElements.back().children;
        if (siblings.empty() || siblings.back().isElement())
            siblings.emplace_back();
        siblings.back().text += piece;
        return {};
    }

    void encoding(std::string_view declared) override { declaredEncoding = declared; }

    std::vector<XmlNode> openElements;
    XmlNode root;
    std::string declaredEncoding;
};

Runtime::Result<XmlDocument> XmlDocument::read(std::string bytes) {
    if (bytes.size() > StringTables::Table::maxBytes)
        return Runtime::Error{"is larger than " + std::to_string(StringTables::Table::maxBytes) + " bytes", {}};
    XmlDocument document;
    document.source_ = std::make_unique<Source>(std::move(bytes));
    Contents& contents = document.source_->contents;
    if (auto recognized = StringTables::internal::recognize(contents); !recognized)
        return std::move(recognized.error());
    if (contents.form != StringTables::Form::xml)
        return contents.errorAt(contents.begin, "is not XML");
    Reader reader;
    if (auto parsed = parseXml(contents, reader); !parsed)
        return std::move(parsed.error());
    document.root_ = std::move(reader.root);
    // Unless isUtf8 is set, the declaration decides; without one, XML is UTF-8.
    document.hasOtherEncoding_ = !contents.isUtf8 && !reader.declaredEncoding.empty() &&
                                 SourceBundle::lowerCase(reader.declaredEncoding) != "utf-8";
    document.source_->locator.emplace(contents);
    return document;
}

std::size_t XmlDocument::lineOf(std::size_t offset) {
    return source_->locator->locate(offset).line;
}

std::string xmlAttribute(std::string_view text) {
    std::string out;
    for (const char c : StringTables::internal::xmlText(text))
        if (c == '"')
            out += "&quot;";
        else if (c == '\t' || c == '\n') // would be read as spaces; xmlText() has escaped CR
            out.append("&#").append(std::to_string(int{c})).append(";");
        else
            out += c;
    return out;
}

} // namespace Exchange
