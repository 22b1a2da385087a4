// Reads XML property lists into a sink.
#include "StringTables/internal/PropertyListSink.h"
#include "StringTables/internal/XmlParser.h"

namespace StringTables::internal {

namespace {

enum class Kind : std::uint8_t { plist, dict, array, key, string, leaf };

struct Element {
    const char* name;
    Kind kind;
    const char* what = nullptr; // the argument of sink.other(), or null if that is not called
};

constexpr Element elements[] = {{"string", Kind::string},
                                {"key", Kind::key},
                                {"dict", Kind::dict},
                                {"array", Kind::array, "an array"},
                                {"integer", Kind::leaf, "a number"},
                                {"real", Kind::leaf, "a number"},
                                {"true", Kind::leaf, "a boolean"},
                                {"false", Kind::leaf, "a boolean"},
                                {"date", Kind::leaf, "a date"},
                                {"data", Kind::leaf, "data"},
                                {"plist", Kind::plist}};

class XmlReader final : public XmlHandler {
public:
    explicit XmlReader(PropertyListSink& sink) : sink_(sink) {}

    std::string open(const char* name, const char* const* attributes, XmlPlace place) override;
    std::string close(XmlPlace place) override;
    std::string characters(std::string_view piece) override;

private:
    struct Level {
        Kind kind;
        bool hasKey = false;    // dict: a key without its value so far
        bool isFilled = false;  // plist: its one value was read
        bool isWanted = false;  // dict: the sink wants its entries; key or value: it is in such a dict
        std::size_t offset = 0; // key: where it begins
    };

    bool isWanted(Kind kind) const noexcept;
    std::string checkPlacement(const Element& element);

    PropertyListSink& sink_;
    std::vector<Level> levels_;
    std::string text_; // of the key or string that is open
};

// Checks that the innermost open element may contain `element` now, and updates the level of that open element. Returns
// an error message, or an empty string.
std::string XmlReader::checkPlacement(const Element& element) {
    const auto tag = [&element] { return std::string("<").append(element.name).append(">"); };
    if (levels_.empty())
        return element.kind == Kind::plist ? "" : "expected <plist>, not " + tag();
    if (levels_.size() == Table::maxDepth)
        return nestedTooDeeply;
    Level& parent = levels_.back();
    // A <plist> inside of another element is rejected like a child of a leaf.
    switch (element.kind == Kind::plist ? Kind::leaf : parent.kind) {
    case Kind::plist:
        if (parent.isFilled || element.kind != Kind::dict)
            return parent.isFilled ? "a second value in <plist>" : "expected <dict>, not " + tag();
        parent.isFilled = true;
        return {};
    case Kind::dict:
        if (parent.hasKey == (element.kind == Kind::key))
            return (parent.hasKey ? "expected a value, not " : "expected <key>, not ") + tag();
        parent.hasKey = !parent.hasKey;
        return {};
    case Kind::array:
        return element.kind == Kind::key ? "<key> outside of a dictionary" : "";
    default:
        return tag() + " does not belong here";
    }
}

std::string XmlReader::open(const char* name, const char* const*, XmlPlace place) {
    const auto* const element =
        std::ranges::find_if(elements, [name](const Element& known) { return std::string_view(known.name) == name; });
    if (element == std::end(elements))
        return "the unknown element <" + std::string(name) + ">";
    if (std::string wrong = checkPlacement(*element); !wrong.empty())
        return wrong;
    Level level{.kind = element->kind, .isWanted = isWanted(element->kind), .offset = place.begin};
    if (level.isWanted && level.kind == Kind::dict)
        level.isWanted = sink_.beginDictionary();
    else if (level.isWanted && element->what != nullptr)
        sink_.other(element->what);
    levels_.push_back(level);
    text_.clear();
    return {};
}

// Whether the sink wants an element of that kind inside the innermost open element.
bool XmlReader::isWanted(Kind kind) const noexcept {
    if (kind == Kind::plist)
        return false;
    return levels_.back().kind == Kind::plist || (levels_.back().kind == Kind::dict && levels_.back().isWanted);
}

std::string XmlReader::close(XmlPlace) {
    const Level closed = levels_.back();
    levels_.pop_back();
    if (closed.hasKey) // the key is still in text_
        return "the key " + quoted(text_) + " has no value";
    if (closed.kind == Kind::plist && !closed.isFilled)
        return "<plist> is empty";
    if (!closed.isWanted)
        return {};
    const char* why = nullptr;
    if (closed.kind == Kind::dict)
        sink_.endDictionary();
    else if (closed.kind == Kind::key)
        why = sink_.key(text_, closed.offset);
    else if (closed.kind == Kind::string)
        why = sink_.string(text_);
    return why != nullptr ? why : "";
}

std::string XmlReader::characters(std::string_view piece) {
    if (levels_.empty())
        return {};
    const Kind kind = levels_.back().kind;
    if (kind == Kind::key || kind == Kind::string)
        text_ += piece;
    else if (kind != Kind::leaf && piece.find_first_not_of(" \t\r\n") != piece.npos)
        return "expected a tag, not text";
    return {};
}

} // namespace

Runtime::Result<void> readXml(const Contents& contents, PropertyListSink& sink) {
    XmlReader reader(sink);
    return parseXml(contents, reader);
}

} // namespace StringTables::internal
