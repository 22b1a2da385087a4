// Reads XLIFF files.
#include "Exchange/Xliff.h"

#include "Exchange/Xml.h"
#include "StringTables/internal/Unicode.h"
#include <array>
#include <charconv>
#include <map>
#include <utility>

namespace Exchange {

using SourceBundle::Severity;

namespace {

// Maps XLIFF states to ours.
State stateNamed(std::string_view name) {
    if (name == "new" || name == "needs-translation")
        return State::isNew;
    return name.starts_with("needs-") ? State::needsReview : State::translated;
}

// The character of <ph ctype="x-character" equiv-text="1F"/>.
std::optional<std::string> character(const XmlNode& node) {
    constexpr int hexadecimal = 16;
    const std::string* const type = node.attribute("ctype");
    const std::string* const digits = node.attribute("equiv-text");
    if (node.name != "ph" || type == nullptr || *type != "x-character" || digits == nullptr)
        return std::nullopt;
    std::uint32_t code = 0;
    const char* const last = digits->data() + digits->size();
    const auto read = std::from_chars(digits->data(), last, code, hexadecimal);
    if (read.ec != std::errc() || read.ptr != last || !StringTables::internal::isScalar(code))
        return std::nullopt;
    std::array<char, 4> utf8;
    return std::string(utf8.data(), StringTables::internal::putUtf8(utf8.data(), char32_t{code}));
}

class Reader {
public:
    Reader(XmlDocument& document, const std::string& file, SourceBundle::Diagnostics& faults)
        : document_(document), file_(file), faults_(faults) {}

    Runtime::Result<std::vector<Translations>> read() {
        const XmlNode& root = document_.root();
        const std::string* const version = root.attribute("version");
        // The elements that are read are the same in older versions.
        if (root.name != "xliff" || version == nullptr || !version->starts_with("1."))
            return error(root, "not XLIFF 1.2");
        for (const XmlNode& child : root.children)
            if (child.name == "file")
                readFile(child);
        if (error_)
            return *std::move(error_);
        return std::move(all_);
    }

private:
    Runtime::Error error(const XmlNode& node, std::string message) {
        return {.message = std::move(message), .file = file_, .line = document_.lineOf(node.begin)};
    }
    void fail(const XmlNode& node, std::string message) {
        if (!error_)
            error_ = error(node, std::move(message));
    }

    void readFile(const XmlNode& file) {
        const std::string* const source = file.attribute("source-language");
        const std::string* const target = file.attribute("target-language");
        if (source == nullptr || target == nullptr)
            return fail(file, "<file> has no source-language or no target-language");
        const auto [place, isNew] = places_.try_emplace({*source, *target}, all_.size());
        if (isNew)
            all_.push_back({.sourceLanguage = *source, .targetLanguage = *target, .file = file_});
        readUnits(file, all_[place->second]);
    }

    void readUnits(const XmlNode& node, Translations& translations) {
        for (const XmlNode& child : node.children)
            if (child.name == "trans-unit")
                readUnit(child, translations);
            else if (child.name == "body" || child.name == "group")
                readUnits(child, translations);
    }

    void readUnit(const XmlNode& node, Translations& translations) {
        const std::string* const idText = node.attribute("id");
        const auto id = idText == nullptr ? std::nullopt : unitIdOf(*idText);
        const XmlNode* const source = node.child("source");
        const XmlNode* const target = node.child("target");
        if (!id)
            return faults_.add(Severity::error,
                               error(node, "\"" + (idText == nullptr ? "" : *idText) + "\" is not the id of a text"));
        if (source == nullptr)
            return faults_.add(Severity::error, error(node, "the unit has no <source>"));
        Unit unit{.id = *id,
                  .sourceCategory = id->category,
                  .state = State::translated,
                  .line = document_.lineOf(node.begin)};
        appendText(unit.source, *source);
        if (target != nullptr) {
            appendText(unit.target, *target);
            if (const std::string* const state = target->attribute("state"))
                unit.state = stateNamed(*state);
        }
        translations.units.push_back(std::move(unit));
    }

    // Elements that only enclose text, such as segment marks, are replaced by their content.
    void appendText(std::string& out, const XmlNode& node) {
        for (const XmlNode& child : node.children)
            if (!child.isElement())
                out += child.text;
            else if (child.name == "g" || child.name == "mrk")
                appendText(out, child);
            else if (const auto one = character(child))
                out += *one;
            else
                fail(child, "this inline element <" + child.name + "> is not supported");
    }

    XmlDocument& document_;
    const std::string& file_;
    SourceBundle::Diagnostics& faults_;
    std::vector<Translations> all_;
    std::map<std::pair<std::string, std::string>, std::size_t> places_; // in all_, by source and target language
    std::optional<Runtime::Error> error_;
};

} // namespace

Runtime::Result<std::vector<Translations>> readXliff(std::string bytes, const std::string& file,
                                                     SourceBundle::Diagnostics& faults) {
    auto document = XmlDocument::read(std::move(bytes));
    if (!document) {
        document.error().file = file;
        return std::move(document.error());
    }
    return Reader(*document, file, faults).read();
}

} // namespace Exchange
