// Writes XLIFF files.
#include "Exchange/Xliff.h"

#include "Exchange/Xml.h"
#include "StringTables/internal/Unicode.h"
#include "StringTables/internal/XmlText.h"
#include <algorithm>
#include <array>
#include <charconv>
#include <span>

namespace Exchange {

using StringTables::internal::canBeXml;
using StringTables::internal::xmlText;

namespace {

// A readable form: characters that XML cannot represent, and tabs and line breaks that are not in `kept`, become
// spaces.
std::string visible(std::string_view text, std::string_view kept = "") {
    std::string out;
    while (!text.empty()) {
        const auto [c, bytes] = StringTables::internal::takeCharacterWithBytes(text);
        const bool isShown = c < ' ' ? kept.find(static_cast<char>(c)) != kept.npos : canBeXml(bytes);
        out += isShown ? bytes : " ";
    }
    return out;
}

std::string_view stateName(State state) {
    switch (state) {
    case State::translated:
        return "translated";
    case State::isNew:
        return "needs-translation";
    case State::needsReview:
        return "needs-review-translation";
    }
    return {};
}

class Writer {
public:
    explicit Writer(const Translations& translations) : translations_(translations) {}

    std::string write(std::string_view version) {
        out_ = "<?xml version=\"1.0\" encoding=\"UTF-8\"?>\n"
               "<xliff version=\"1.2\" xmlns=\"urn:oasis:names:tc:xliff:document:1.2\">\n";
        std::span<const Unit> rest = translations_.units;
        while (!rest.empty()) {
            const auto end = std::ranges::find_if(
                rest, [&rest](const Unit& unit) { return unit.id.table != rest.front().id.table; });
            const auto size = static_cast<std::size_t>(end - rest.begin());
            writeTable(rest.first(size), version);
            rest = rest.subspan(size);
        }
        return out_ + "</xliff>\n";
    }

private:
    void writeTable(std::span<const Unit> units, std::string_view version) {
        out_ += "  <file original=\"" + xmlAttribute(visible(units.front().id.table)) + "\" source-language=\"" +
                xmlAttribute(translations_.sourceLanguage) + "\" target-language=\"" +
                xmlAttribute(translations_.targetLanguage) +
                "\" datatype=\"plaintext\">\n    <header>\n      <tool tool-id=\"lumora\" tool-name=\"lumora\" "
                "tool-version=\"" +
                xmlAttribute(version) + "\"/>\n    </header>\n    <body>\n";
        while (!units.empty()) {
            const auto end =
                std::ranges::find_if(units, [&units](const Unit& unit) { return !isSamePart(units.front(), unit); });
            const auto size = static_cast<std::size_t>(end - units.begin());
            writePart(units.first(size));
            units = units.subspan(size);
        }
        out_ += "    </body>\n  </file>\n";
    }

    void writePart(std::span<const Unit> units) {
        if (!units.front().id.category)
            return writeUnit(units.front(), "      ");
        UnitId id = units.front().id;
        id.category.reset();
        out_ += "      <group id=\"" + xmlAttribute(textOf(id)) + "\" resname=\"" + xmlAttribute(visible(id.key)) +
                "\" restype=\"x-gettext-plurals\">\n";
        for (const Unit& unit : units)
            writeUnit(unit, "        ");
        out_ += "      </group>\n";
    }

    void writeUnit(const Unit& unit, const std::string& indent) {
        out_ += indent + "<trans-unit id=\"" + xmlAttribute(textOf(unit.id)) + "\" resname=\"" +
                xmlAttribute(visible(unit.id.key)) + "\" xml:space=\"preserve\">\n" + indent + "  <source>";
        writeText(unit.source);
        out_ += "</source>\n";
        if (!unit.target.empty()) {
            out_.append(indent).append("  <target state=\"").append(stateName(unit.state)).append("\">");
            writeText(unit.target);
            out_ += "</target>\n";
        }
        if (const std::size_t colon = unit.place.rfind(':'); colon != unit.place.npos)
            out_ += indent + R"(  <context-group purpose="location"><context context-type="sourcefile">)" +
                    xmlText(visible(std::string_view(unit.place).substr(0, colon))) +
                    "</context><context context-type=\"linenumber\">" + unit.place.substr(colon + 1) +
                    "</context></context-group>\n";
        if (!unit.comment.empty())
            out_ += indent + "  <note>" + xmlText(visible(unit.comment, "\n")) + "</note>\n";
        out_ += indent + "</trans-unit>\n";
    }

    void writeText(std::string_view text) {
        if (canBeXml(text)) {
            out_ += xmlText(text);
            return;
        }
        for (std::size_t number = 1; !text.empty();) {
            const auto [c, bytes] = StringTables::internal::takeCharacterWithBytes(text);
            if (canBeXml(bytes))
                out_ += xmlText(bytes);
            else
                writeCharacter(number++, c);
        }
    }

    void writeCharacter(std::size_t number, char32_t c) {
        constexpr int hexadecimal = 16;
        std::array<char, 8> digits;
        const auto end = std::to_chars(digits.begin(), digits.end(), std::uint32_t{c}, hexadecimal).ptr;
        out_.append("<ph id=\"").append(std::to_string(number)).append(R"(" ctype="x-character" equiv-text=")");
        out_.append(digits.begin(), end).append("\"/>");
    }

    const Translations& translations_;
    std::string out_;
};

} // namespace

std::string writeXliff(const Translations& translations, std::string_view version) {
    return Writer(translations).write(version);
}

} // namespace Exchange
