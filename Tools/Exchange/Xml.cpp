#include "Exchange/Xml.h"

#include "StringTables/internal/Unicode.h"
#include "StringTables/internal/XmlParser.h"
#include <algorithm>
#include <optional>

namespace Exchange {

using StringTables::internal::Contents;
using StringTables::internal::Locator;
using StringTables::internal::XmlParser;

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

struct XmlDocument::Reader {
    explicit Reader(const Contents& source) : contents(source), parser(source, this) {
        XML_SetElementHandler(
            parser.get(),
            [](void* self, const char* name, const char** attributes) {
                handle(self, [=](Reader& reader) { reader.open(name, attributes); });
            },
            [](void* self, const char*) { handle(self, [](Reader& reader) { reader.close(); }); });
        XML_SetCharacterDataHandler(parser.get(), [](void* self, const char* text, int size) {
            handle(self, [=](Reader& reader) { reader.characters({text, static_cast<std::size_t>(size)}); });
        });
        XML_SetXmlDeclHandler(parser.get(), [](void* self, const char*, const char* declared, int) {
            if (declared != nullptr)
                handle(self, [=](Reader& reader) { reader.encoding = declared; });
        });
        // Without declarations no entity can grow or reach outside.
        XML_SetEntityDeclHandler(parser.get(), [](void* self, const char*, int, const char*, int, const char*,
                                                  const char*, const char*, const char*) {
            handle(self, [](Reader& reader) { reader.stop("an entity declaration"); });
        });
        XML_SetSkippedEntityHandler(parser.get(), [](void* self, const char* name, int) {
            handle(self,
                   [=](Reader& reader) { reader.stop("the unknown entity " + StringTables::internal::quoted(name)); });
        });
    }

    template <class Step> static void handle(void* self, Step step) noexcept {
        auto& reader = *static_cast<Reader*>(self);
        reader.parser.handle([&] { step(reader); });
    }

    void stop(std::string message) {
        error = contents.errorAt(parser.offset(), std::move(message));
        parser.stop();
    }

    std::size_t endOfEvent() const {
        return parser.offset() + static_cast<std::size_t>(XML_GetCurrentByteCount(parser.get()));
    }

    void open(const char* name, const char** attributes) {
        if (open_.size() == maxDepth)
            return stop(StringTables::internal::nestedTooDeeply);
        XmlNode& node = open_.emplace_back();
        const std::string_view full = name;
        node.name = full.substr(full.rfind(':') + 1);
        for (; *attributes != nullptr; attributes += 2)
            node.attributes.emplace_back(attributes[0], attributes[1]);
        node.begin = parser.offset();
        node.contentBegin = endOfEvent();
    }

    void close() {
        XmlNode node = std::move(open_.back());
        open_.pop_back();
        node.contentEnd = parser.offset();
        node.end = endOfEvent();
        if (open_.empty())
            root = std::move(node);
        else
            open_.back().children.push_back(std::move(node));
    }

    void characters(std::string_view piece) {
        auto& siblings = open_.back().children;
        if (siblings.empty() || siblings.back().isElement())
            siblings.emplace_back();
        siblings.back().text += piece;
    }

    const Contents& contents;
    XmlParser parser;
    std::vector<XmlNode> open_;
    XmlNode root;
    std::string encoding;
    std::optional<Runtime::Error> error;
};

Runtime::Result<XmlDocument> XmlDocument::read(std::string bytes) {
    if (bytes.size() > StringTables::Table::maxBytes)
        return Runtime::Error{"larger than " + std::to_string(StringTables::Table::maxBytes) + " bytes", {}};
    XmlDocument document;
    document.source_ = std::make_unique<Source>(std::move(bytes));
    Contents& contents = document.source_->contents;
    if (auto recognized = StringTables::internal::recognize(contents); !recognized)
        return std::move(recognized.error());
    if (contents.form != StringTables::Form::xml)
        return contents.errorAt(contents.begin, "not XML");
    Reader reader(contents);
    const bool isWellFormed = reader.parser.parse();
    if (reader.error)
        return *std::move(reader.error);
    if (!isWellFormed)
        return contents.errorAt(reader.parser.offset(), XML_ErrorString(XML_GetErrorCode(reader.parser.get())));
    document.root_ = std::move(reader.root);
    const auto lower = [](char c) { return c >= 'A' && c <= 'Z' ? static_cast<char>(c + ('a' - 'A')) : c; };
    std::ranges::transform(reader.encoding, reader.encoding.begin(), lower);
    document.hasOtherEncoding_ = !contents.isUtf8 && !reader.encoding.empty() && reader.encoding != "utf-8";
    document.source_->locator.emplace(contents);
    return document;
}

std::size_t XmlDocument::lineOf(std::size_t offset) {
    return source_->locator->locate(offset).line;
}

bool xmlHolds(std::string_view text) noexcept {
    return std::ranges::none_of(
               text,
               [](char c) { return static_cast<unsigned char>(c) < ' ' && c != '\t' && c != '\n' && c != '\r'; }) &&
           text.find("\uFFFE") == text.npos && text.find("\uFFFF") == text.npos;
}

std::string xmlText(std::string_view text, bool inAscii) {
    std::string out;
    while (!text.empty()) {
        const std::string_view before = text;
        const char32_t c = StringTables::internal::takeCharacter(text);
        if (c == '&')
            out += "&amp;";
        else if (c == '<')
            out += "&lt;";
        else if (c == '>')
            out += "&gt;";
        else if (c == '\r' || (inAscii && c > 0x7F)) // a carriage return would be read as a line end
            out.append("&#").append(std::to_string(std::uint32_t{c})).append(";");
        else
            out += before.substr(0, before.size() - text.size());
    }
    return out;
}

std::string xmlAttribute(std::string_view text) {
    std::string out;
    for (const char c : xmlText(text))
        if (c == '"')
            out += "&quot;";
        else if (c == '\t' || c == '\n')
            out.append("&#").append(std::to_string(int{c})).append(";");
        else
            out += c;
    return out;
}

} // namespace Exchange
