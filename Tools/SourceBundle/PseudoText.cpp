#include "SourceBundle/PseudoText.h"

#include "StringTables/internal/PluralPieces.h"
#include <algorithm>

namespace SourceBundle {

using StringTables::PluralFormat;
using StringTables::PluralPieces;

namespace {

constexpr std::string_view blanks = " \t\r\n";

bool isLetter(char c) {
    return (c >= 'a' && c <= 'z') || (c >= 'A' && c <= 'Z');
}

std::string_view accented(char c) {
    static constexpr std::array<std::string_view, 26> small = {"å", "ƀ", "ç", "ð", "é", "ƒ", "ĝ", "ĥ", "î",
                                                               "ĵ", "ķ", "ļ", "ɱ", "ñ", "ö", "þ", "ɋ", "ŕ",
                                                               "š", "ţ", "û", "ṽ", "ŵ", "ẋ", "ý", "ž"};
    static constexpr std::array<std::string_view, 26> capital = {"Å", "Ɓ", "Ç", "Ð", "É", "Ƒ", "Ĝ", "Ĥ", "Î",
                                                                 "Ĵ", "Ķ", "Ļ", "Ṁ", "Ñ", "Ö", "Þ", "Ɋ", "Ŕ",
                                                                 "Š", "Ţ", "Û", "Ṽ", "Ŵ", "Ẋ", "Ý", "Ž"};
    return c >= 'a' ? small[static_cast<std::size_t>(c - 'a')] : capital[static_cast<std::size_t>(c - 'A')];
}

// The number of leading bytes that are markup: a tag, an entity, or a backslash with the escaped character.
std::size_t markupSize(std::string_view text) {
    if (text[0] == '\\')
        return std::min<std::size_t>(text.size(), 2);
    const bool isTag = text[0] == '<' && text.size() > 1 && (isLetter(text[1]) || text[1] == '/');
    const bool isEntity = text[0] == '&' && text.size() > 1 && (isLetter(text[1]) || text[1] == '#');
    const std::size_t end = isTag ? text.find('>') : isEntity ? text.find_first_of("; ") : text.npos;
    return end == text.npos || text[end] == ' ' ? 0 : end + 1;
}

class Writer {
public:
    explicit Writer(Pseudo kind) : kind_(kind) {}

    // Adds text without placeholders: words and what separates them.
    void addWords(std::string_view text) {
        while (!text.empty()) {
            const std::size_t markup = markupSize(text);
            std::size_t size = std::max<std::size_t>(markup, 1);
            if (markup == 0 && blanks.find(text[0]) == blanks.npos)
                while (size < text.size() && blanks.find(text[size]) == blanks.npos &&
                       markupSize(text.substr(size)) == 0)
                    ++size;
            const std::string_view part = text.substr(0, size);
            if (markup == 0 && std::ranges::any_of(part, isLetter))
                addWord(part);
            else
                out_ += part;
            text.remove_prefix(size);
        }
    }
    void addUntouched(std::string_view text) { out_ += text; }

    // Pads accented texts by a third of their letters.
    std::string finish(bool isWhole) {
        if (kind_ == Pseudo::rightToLeft)
            return out_;
        constexpr std::size_t part = 3, word = 6;
        const std::size_t padding = (letters_ + part - 1) / part;
        const std::size_t end = out_.find_last_not_of("\r\n") + 1; // of the last line
        std::string tail;
        for (std::size_t i = 0; i < padding; ++i)
            tail += i % word == 0 ? " ~" : "~";
        if (!isWhole || end == 0)
            return out_.insert(end, tail);
        out_.insert(end, tail + "]");
        return out_.insert(out_.find_first_not_of("\r\n"), "[");
    }

private:
    void addWord(std::string_view word) {
        constexpr std::string_view mark = "\u200F", override = "\u202E", pop = "\u202C";
        if (kind_ == Pseudo::rightToLeft) {
            out_.append(mark).append(override).append(word).append(pop).append(mark);
            return;
        }
        for (const char c : word) {
            if (isLetter(c)) {
                out_ += accented(c);
                ++letters_;
            } else {
                out_ += c;
            }
        }
    }

    Pseudo kind_;
    std::string out_;
    std::size_t letters_ = 0;
};

// `next` returns the placeholders of the text in order.
template <class Next> std::string transformed(std::string_view text, Pseudo kind, bool isWhole, Next next) {
    Writer writer(kind);
    std::size_t done = 0;
    while (const auto placeholder = next()) {
        writer.addWords(text.substr(done, placeholder->begin - done));
        writer.addUntouched(text.substr(placeholder->begin, placeholder->end - placeholder->begin));
        done = placeholder->end;
    }
    writer.addWords(text.substr(done));
    return writer.finish(isWhole);
}

std::string transformed(std::string_view text, Pseudo kind, bool isWhole, PluralPieces pieces) {
    return transformed(text, kind, isWhole, [&pieces] {
        const auto piece = pieces.next();
        return piece ? std::optional(piece->placeholder) : std::nullopt;
    });
}

} // namespace

std::string pseudoText(std::string_view text, Pseudo kind) {
    std::size_t at = 0;
    return transformed(text, kind, true, [&] {
        const auto placeholder = StringTables::nextPlaceholder(text, at);
        at = placeholder ? placeholder->end : at;
        return placeholder;
    });
}

PluralFormat pseudoPlural(const PluralFormat& plural, Pseudo kind) {
    PluralFormat out = plural;
    out.format = transformed(plural.format, kind, true, PluralPieces(plural));
    for (std::size_t i = 0; i < plural.variables.size(); ++i)
        for (std::size_t category = 0; category < Intl::pluralCategoryCount; ++category)
            if (const auto& form = plural.variables[i].forms[category])
                out.variables[i].forms[category] =
                    transformed(*form, kind, false, PluralPieces(plural, *form, plural.variables[i], 1));
    return out;
}

} // namespace SourceBundle
