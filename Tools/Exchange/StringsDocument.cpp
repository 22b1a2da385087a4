#include "Exchange/StringsDocument.h"

#include "StringTables/internal/TextSyntax.h"
#include "StringTables/internal/Writer.h"
#include <array>

namespace Exchange {

namespace {

constexpr std::string_view mark = "\xEF\xBB\xBF"; // the byte-order mark in UTF-8

// Both take an offset in the text of a valid table and return the end of what begins there: blanksEnd() of white space
// and comments, stringEnd() of a string.
std::size_t blanksEnd(const std::string& text, std::size_t at) {
    constexpr std::array<std::string_view, 2> separators = {"\u2028", "\u2029"};
    const std::string_view all = text;
    for (;;) {
        if (at < text.size() && std::string_view(" \t\v\f\r\n").find(text[at]) != std::string_view::npos)
            ++at;
        else if (StringTables::internal::beginsComment(text.c_str() + at))
            at = static_cast<std::size_t>(
                StringTables::internal::commentEnd(text.c_str() + at, text.c_str() + text.size()) - text.c_str());
        else if (all.substr(at).starts_with(separators[0]) || all.substr(at).starts_with(separators[1]))
            at += separators[0].size();
        else
            return at;
    }
}

std::size_t stringEnd(const std::string& text, std::size_t at) {
    const char* const begin = text.c_str();
    if (text[at] == '"' || text[at] == '\'')
        return static_cast<std::size_t>(StringTables::internal::quotedEnd(begin + at, begin + text.size()).close -
                                        begin + 1);
    constexpr char firstOfSeparator = '\xE2'; // the first byte of U+2028 and U+2029; an unquoted string is ASCII
    while (at < text.size() && !StringTables::internal::beginsComment(begin + at) &&
           std::string_view(" \t\v\f\r\n=;}").find(text[at]) == std::string_view::npos && text[at] != firstOfSeparator)
        ++at;
    return at;
}

} // namespace

Runtime::Result<StringsDocument> StringsDocument::read(DecodedText file) {
    const auto table = StringTables::Table::read(file.text);
    if (!table)
        return table.error();
    StringsDocument document;
    document.file_ = std::move(file);
    for (const StringTables::Entry& entry : table->entries())
        document.keys_.emplace(entry.key, entry.offset);
    return document;
}

Runtime::Result<void> StringsDocument::apply(const Change& change) {
    const Unit& unit = *change.changed.front();
    const auto known = keys_.find(unit.id.key);
    if (known == keys_.end()) {
        const std::array<StringTables::Entry, 1> entry = {{{unit.id.key, unit.target}}};
        const std::array<std::string, 1> comment = {std::string(change.development->comment)};
        auto written = StringTables::write(entry, StringTables::Form::text, comment);
        if (!written)
            return std::move(written.error());
        added_ += *written;
        return {};
    }
    std::string literal;
    StringTables::appendQuoted(literal, unit.target);
    const std::string& text = file_.text;
    const std::size_t keyEnd = stringEnd(text, known->second);
    const std::size_t equals = blanksEnd(text, keyEnd);
    if (text[equals] != '=') { // a key alone is its own text
        edits_.insert(keyEnd, " = " + literal);
        return {};
    }
    const std::size_t value = blanksEnd(text, equals + 1);
    edits_.replace(value, stringEnd(text, value), std::move(literal));
    return {};
}

StringsDocument::End StringsDocument::findEnd() const {
    const std::string& text = file_.text;
    const std::size_t begin = text.starts_with(mark) ? mark.size() : 0;
    const bool hasBraces = text[blanksEnd(text, begin)] == '{';
    std::size_t last = 0, lastButOne = 0; // the ends of the last two quoted strings or other characters
    for (std::size_t at = blanksEnd(text, begin); at < text.size(); at = blanksEnd(text, last)) {
        lastButOne = last;
        const bool isQuoted = text[at] == '"' || text[at] == '\'';
        last = isQuoted ? stringEnd(text, at) : at + 1;
    }
    const std::size_t entryEnd = hasBraces ? lastButOne : last;
    const std::size_t endOfEmpty = hasBraces ? blanksEnd(text, begin) + 1 : 0; // `entryEnd` of a table without entries
    return {.at = hasBraces ? last - 1 : text.size(),
            .lacksSemicolon = entryEnd > endOfEmpty && text[entryEnd - 1] != ';',
            .entryEnd = entryEnd};
}

std::string StringsDocument::withAddedEntries() const {
    TextEdits edits = edits_;
    const End end = findEnd();
    const std::string& text = file_.text;
    if (end.lacksSemicolon)
        edits.insert(end.entryEnd, ";");
    std::string added;
    const bool isLineBegun = end.at > (text.starts_with(mark) ? mark.size() : 0) && text[end.at - 1] != '\n';
    const std::size_t lineEnd = text.find('\n');
    const bool hasCrLf = lineEnd != text.npos && lineEnd > 0 && text[lineEnd - 1] == '\r';
    for (const char c : (isLineBegun ? "\n" : "") + added_) {
        if (c == '\n' && hasCrLf)
            added += '\r';
        added += c;
    }
    edits.insert(end.at, std::move(added));
    return edits.applied(text);
}

Runtime::Result<std::string> StringsDocument::bytes() const {
    return file_.encoded(added_.empty() ? edits_.applied(file_.text) : withAddedEntries());
}

} // namespace Exchange
