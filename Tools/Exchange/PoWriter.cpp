// Writes PO files.
#include "Exchange/Languages.h"
#include "Exchange/Po.h"
#include "Exchange/PoEntries.h"
#include "Exchange/PoSyntax.h"
#include "Intl/internal/PluralRules.h"
#include <algorithm>

namespace Exchange {

namespace {

void appendEscaped(std::string& out, char c) {
    const auto octal = [](unsigned digit) { return static_cast<char>('0' + digit); };
    const auto byte = static_cast<unsigned char>(c);
    if (const std::size_t found = poEscapedCharacters.find(c); found != poEscapedCharacters.npos)
        out.append({'\\', poEscapeLetters[found]});
    else if (byte < ' ' || byte == 0x7F)
        out.append({'\\', octal(byte >> 6), octal(byte >> 3 & 7U), octal(byte & 7U)});
    else
        out += c;
}

// Writes a text of several lines as several strings.
void appendString(std::string& out, std::string_view keyword, std::string_view text) {
    out.append(keyword).append(" ");
    const std::size_t first = text.find('\n');
    if (first != text.npos && first + 1 != text.size())
        out += "\"\"\n";
    out += '"';
    for (std::size_t i = 0; i < text.size(); ++i) {
        appendEscaped(out, text[i]);
        if (text[i] == '\n' && i + 1 != text.size())
            out += "\"\n\"";
    }
    out += "\"\n";
}

void appendComment(std::string& out, std::string_view mark, std::string_view text) {
    while (!text.empty()) {
        const std::size_t size = std::min(text.find_first_of("\r\n"), text.size());
        out.append(mark).append(text.substr(0, size)).append("\n");
        const std::size_t breakSize = text.substr(size, 2) == "\r\n" ? 2 : 1;
        text.remove_prefix(std::min(size + breakSize, text.size()));
    }
}

void appendHeader(std::string& out, const Translations& translations) {
    const auto withUnderscores = [](std::string code) {
        std::ranges::replace(code, '-', '_');
        return code;
    };
    std::string header = "Project-Id-Version: lumora export\n"
                         "PO-Revision-Date: \n"
                         "Last-Translator: \n"
                         "Language-Team: \n"
                         "MIME-Version: 1.0\n"
                         "Content-Type: text/plain; charset=UTF-8\n"
                         "Content-Transfer-Encoding: 8bit\n";
    header.append("Language: ").append(withUnderscores(translations.targetLanguage)).append("\n");
    header.append("X-Source-Language: ").append(withUnderscores(translations.sourceLanguage)).append("\n");
    header.append("Plural-Forms: nplurals=")
        .append(std::to_string(integerCategoriesOf(translations.targetLanguage).size()))
        .append("; plural=(")
        .append(Intl::integerPluralExpression(translations.targetLanguage))
        .append(");\n");
    out += "msgid \"\"\n";
    appendString(out, "msgstr", header);
}

bool containsNul(const Unit& unit) {
    return unit.source.find('\0') != std::string::npos || unit.target.find('\0') != std::string::npos;
}

void appendEntry(std::string& out, const PoEntry& entry, std::span<const Unit> units) {
    const Unit& first = units[entry.units.front()];
    out += "\n";
    appendComment(out, "#. ", first.comment);
    appendComment(out, "#: ", first.place);
    if (first.isFuzzy)
        out += "#, fuzzy\n";
    UnitId id = first.id;
    if (entry.isPlural)
        id.category.reset();
    appendString(out, "msgctxt", textOf(id));
    appendString(out, "msgid", units[entry.singular].source);
    if (!entry.isPlural)
        return appendString(out, "msgstr", first.target);
    appendString(out, "msgid_plural", units[entry.plural].source);
    for (std::size_t i = 0; i < entry.units.size(); ++i)
        appendString(out, "msgstr[" + std::to_string(i) + "]", units[entry.units[i]].target);
}

} // namespace

std::string writePo(const Translations& translations, SourceBundle::Diagnostics& diagnostics) {
    std::string out;
    appendHeader(out, translations);
    const std::span<const Unit> units = translations.units;
    for (const PoEntry& entry : poEntries(units, translations.targetLanguage)) {
        const auto isLost = [units](std::size_t number) { return containsNul(units[number]); };
        if (std::ranges::any_of(entry.units, isLost) || isLost(entry.singular) || isLost(entry.plural))
            diagnostics.add(SourceBundle::Severity::warning,
                            {.message = textOf(units[entry.units.front()].id) +
                                        " is left out, because PO files cannot represent its NUL character"});
        else
            appendEntry(out, entry, units);
    }
    return out;
}

} // namespace Exchange
