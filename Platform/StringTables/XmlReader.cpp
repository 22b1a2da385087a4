#include "StringTables/internal/PropertyListSink.h"
#include "StringTables/internal/XmlParser.h"

namespace StringTables::internal {

namespace {

enum class Kind : std::uint8_t { plist, dict, array, key, string, leaf };

struct Element {
    const char* name;
    Kind kind;
    const char* what = nullptr; // in a note about a value that is no text
};

constexpr Element elements[] = {{"string", Kind::string},
                                {"key", Kind::key},
                                {"dict", Kind::dict, "a dictionary"},
                                {"array", Kind::array, "an array"},
                                {"integer", Kind::leaf, "a number"},
                                {"real", Kind::leaf, "a number"},
                                {"true", Kind::leaf, "a truth value"},
                                {"false", Kind::leaf, "a truth value"},
                                {"date", Kind::leaf, "a date"},
                                {"data", Kind::leaf, "data"},
                                {"plist", Kind::plist}};

class XmlReader {
public:
    XmlReader(Contents& contents, PropertyListSink& sink)
        : contents_(contents), sink_(sink), parser_(contents, this) {}

    Runtime::Result<void> read();

private:
    struct Level {
        Kind kind;
        bool hasKey = false;    // dict: a key waits for its value
        bool filled = false;    // plist: its one value was there
        bool isWanted = false;  // dict: the sink wants its entries; key or value: of such a dict
        std::size_t offset = 0; // key: where it begins
    };

    template <class Step> static void handle(void* self, Step step) noexcept {
        auto& reader = *static_cast<XmlReader*>(self);
        reader.parser_.handle([&] { step(reader); });
    }

    void open(const char* name);
    bool isWanted(Kind kind) const noexcept;
    void close();
    void characters(std::string_view piece);
    std::string place(const Element& element);
    void stop(std::string message);
    Contents& contents_;
    PropertyListSink& sink_;
    XmlParser parser_;
    std::vector<Level> levels_;
    std::string text_; // of the key or string that is open
    std::optional<Runtime::Error> error_;
};

Runtime::Result<void> XmlReader::read() {
    XML_SetElementHandler(
        parser_.get(),
        [](void* self, const char* name, const char**) { handle(self, [=](XmlReader& reader) { reader.open(name); }); },
        [](void* self, const char*) { handle(self, [](XmlReader& reader) { reader.close(); }); });
    XML_SetCharacterDataHandler(parser_.get(), [](void* self, const char* text, int size) {
        handle(self, [=](XmlReader& reader) { reader.characters({text, static_cast<std::size_t>(size)}); });
    });
    // Property lists declare no entities; without declarations none can grow or reach outside.
    XML_SetEntityDeclHandler(parser_.get(), [](void* self, const char*, int, const char*, int, const char*, const char*,
                                               const char*, const char*) {
        handle(self, [](XmlReader& reader) { reader.stop("an entity declaration"); });
    });
    XML_SetSkippedEntityHandler(parser_.get(), [](void* self, const char* name, int) {
        handle(self, [=](XmlReader& reader) { reader.stop("the unknown entity " + quoted(name)); });
    });
    const bool isWellFormed = parser_.parse();
    if (error_)
        return *std::move(error_);
    if (!isWellFormed)
        return contents_.errorAt(parser_.offset(), XML_ErrorString(XML_GetErrorCode(parser_.get())));
    return {};
}

void XmlReader::stop(std::string message) {
    error_ = contents_.errorAt(parser_.offset(), std::move(message));
    parser_.stop();
}

// Validates `element` against its parent. Returns what is wrong with its place, or nothing.
std::string XmlReader::place(const Element& element) {
    const auto tag = [&element] { return std::string("<").append(element.name).append(">"); };
    if (levels_.empty())
        return element.kind == Kind::plist ? "" : "expected <plist>, not " + tag();
    if (levels_.size() == Table::maxDepth)
        return nestedTooDeeply;
    Level& around = levels_.back();
    switch (element.kind == Kind::plist ? Kind::leaf : around.kind) {
    case Kind::plist:
        if (around.filled || element.kind != Kind::dict)
            return around.filled ? "a second value in <plist>" : "expected <dict>, not " + tag();
        around.filled = true;
        return {};
    case Kind::dict:
        if (around.hasKey == (element.kind == Kind::key))
            return (around.hasKey ? "expected a value, not " : "expected <key>, not ") + tag();
        around.hasKey = !around.hasKey;
        return {};
    case Kind::array:
        return element.kind == Kind::key ? "<key> outside of a dictionary" : "";
    default:
        return tag() + " does not belong here";
    }
}

void XmlReader::open(const char* name) {
    const auto* const element =
        std::ranges::find_if(elements, [name](const Element& known) { return std::string_view(known.name) == name; });
    if (element == std::end(elements))
        return stop("the unknown element <" + std::string(name) + ">");
    if (std::string wrong = place(*element); !wrong.empty())
        return stop(std::move(wrong));
    Level level{.kind = element->kind, .isWanted = isWanted(element->kind), .offset = parser_.offset()};
    if (level.isWanted && level.kind == Kind::dict)
        level.isWanted = sink_.beginDictionary();
    else if (level.isWanted && element->what != nullptr)
        sink_.other(element->what);
    levels_.push_back(level);
    text_.clear();
}

// Whether the sink wants an element of the innermost open one.
bool XmlReader::isWanted(Kind kind) const noexcept {
    if (kind == Kind::plist)
        return false;
    return levels_.back().kind == Kind::plist || (levels_.back().kind == Kind::dict && levels_.back().isWanted);
}

void XmlReader::close() {
    const Level closed = levels_.back();
    levels_.pop_back();
    if (closed.hasKey)
        return stop("the key " + quoted(text_) + " has no value");
    if (closed.kind == Kind::plist && !closed.filled)
        return stop("<plist> is empty");
    if (!closed.isWanted)
        return;
    if (closed.kind == Kind::dict)
        return sink_.endDictionary();
    const char* why = nullptr;
    if (closed.kind == Kind::key)
        why = sink_.key(text_, closed.offset);
    else if (closed.kind == Kind::string)
        why = sink_.string(text_);
    if (why != nullptr)
        stop(why);
}

void XmlReader::characters(std::string_view piece) {
    if (levels_.empty())
        return;
    const Kind kind = levels_.back().kind;
    if (kind == Kind::key || kind == Kind::string)
        text_ += piece;
    else if (kind != Kind::leaf && piece.find_first_not_of(" \t\r\n") != piece.npos)
        stop("text outside of a key or value");
}

} // namespace

Runtime::Result<void> readXml(Contents& contents, PropertyListSink& sink) {
    return XmlReader(contents, sink).read();
}

} // namespace StringTables::internal
