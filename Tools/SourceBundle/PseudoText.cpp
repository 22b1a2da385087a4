#include "SourceBundle/PseudoText.h"

#include "StringTables/internal/PluralPieces.h"
#include "StringTables/internal/Unicode.h"
#include <algorithm>
#include <unicode/uchar.h>
#include <unicode/uscript.h>

namespace SourceBundle {

using StringTables::PluralFormat;
using StringTables::PluralPieces;
using StringTables::internal::Character;

namespace {

// NOLINTNEXTLINE(misc-misleading-bidirectional): an override ends in the text, not in this literal
constexpr std::string_view rightToLeftMark = "\u200F", rightToLeftOverride = "\u202E", endOfOverride = "\u202C";
constexpr std::string_view combiningMark = "\u0302"; // circumflex
constexpr std::string_view asciiLetters = "abcdefghijklmnopqrstuvwxyzABCDEFGHIJKLMNOPQRSTUVWXYZ";

bool isAsciiLetter(char c) {
    return (c >= 'a' && c <= 'z') || (c >= 'A' && c <= 'Z');
}

bool isLetter(char32_t c) {
    return static_cast<bool>(u_isalpha(static_cast<UChar32>(c)));
}

// White space or a direction mark.
bool separatesWords(char32_t c) {
    const auto code = static_cast<UChar32>(c);
    return u_isUWhiteSpace(code) || u_hasBinaryProperty(code, UCHAR_BIDI_CONTROL);
}

// Whether a combining mark suits the letter: it does in alphabets with capital and small letters, such as Cyrillic and
// Greek. Latin letters outside ASCII get none, because most have one already.
bool takesMark(char32_t c) {
    const auto code = static_cast<UChar32>(c);
    return u_hasBinaryProperty(code, UCHAR_CASED) && !uscript_hasScript(code, USCRIPT_LATIN);
}

std::string_view accented(char letter) {
    static constexpr std::array<std::string_view, asciiLetters.size()> accents = {
        "å", "ƀ", "ç", "ð", "é", "ƒ", "ĝ", "ĥ", "î", "ĵ", "ķ", "ļ", "ɱ", "ñ", "ö", "þ", "ɋ", "ŕ",
        "š", "ţ", "û", "ṽ", "ŵ", "ẋ", "ý", "ž", "Å", "Ɓ", "Ç", "Ð", "É", "Ƒ", "Ĝ", "Ĥ", "Î", "Ĵ",
        "Ķ", "Ļ", "Ṁ", "Ñ", "Ö", "Þ", "Ɋ", "Ŕ", "Š", "Ţ", "Û", "Ṽ", "Ŵ", "Ẋ", "Ý", "Ž"};
    return accents[asciiLetters.find(letter)];
}

Character firstCharacter(std::string_view text) {
    return StringTables::internal::takeCharacterWithBytes(text);
}

// The number of leading bytes that are a backslash escape: the backslash, the escaped character, and the hexadecimal
// digits after "\u" and the like.
std::size_t escapeSize(std::string_view text) {
    if (text.size() == 1)
        return 1;
    const std::string_view escaped = firstCharacter(text.substr(1)).bytes;
    const std::size_t end = 1 + escaped.size();
    if (escaped != "u" && escaped != "U" && escaped != "x")
        return end;
    constexpr std::size_t mostDigits = 8; // of "\U"; further letters after "\u" and "\x" may stay unaccented
    const std::string_view rest = text.substr(end, mostDigits);
    return end + std::min(rest.find_first_not_of("0123456789abcdefABCDEF"), rest.size());
}

// The number of leading bytes that are markup: a tag, an entity, or a backslash escape.
std::size_t markupSize(std::string_view text) {
    if (text[0] == '\\')
        return escapeSize(text);
    const bool isTag = text[0] == '<' && text.size() > 1 && (isAsciiLetter(text[1]) || text[1] == '/');
    const bool isEntity = text[0] == '&' && text.size() > 1 && (isAsciiLetter(text[1]) || text[1] == '#');
    if (!isTag && !isEntity)
        return 0;
    const std::size_t end = text.find_first_of(isTag ? "<>" : "; &<", 1);
    return end == text.npos || text[end] != (isTag ? '>' : ';') ? 0 : end + 1;
}

// The number of leading bytes that are not part of a word: markup, or one separator.
std::size_t unchangedSize(std::string_view text) {
    if (const std::size_t markup = markupSize(text))
        return markup;
    const Character first = firstCharacter(text);
    return separatesWords(first.code) ? first.bytes.size() : 0;
}

// The end of the word that begins at `at`. Not after `limit`.
std::size_t wordEnd(std::string_view text, std::size_t at, std::size_t limit) {
    while (at < limit && unchangedSize(text.substr(at)) == 0)
        at += firstCharacter(text.substr(at)).bytes.size();
    return at;
}

class Writer {
public:
    explicit Writer(Pseudo kind) : kind_(kind) {}

    void addUnchanged(std::string_view text) { out_ += text; }

    void addWord(std::string_view word) {
        const std::size_t begin = out_.size(), lettersBefore = letters_;
        for (std::string_view rest = word; !rest.empty();) {
            const Character first = firstCharacter(rest);
            rest.remove_prefix(first.bytes.size());
            addCharacter(first);
        }
        if (kind_ == Pseudo::rightToLeft && letters_ != lettersBefore) {
            out_.insert(begin, rightToLeftOverride).insert(begin, rightToLeftMark);
            out_.append(endOfOverride).append(rightToLeftMark);
        }
    }

    // Pads an accented text by a third of its letters, before the line breaks at its end. With `isWhole` it gets
    // brackets, too; a plural form gets none.
    std::string finish(bool isWhole) {
        if (kind_ == Pseudo::rightToLeft)
            return out_;
        constexpr std::size_t lettersPerTilde = 3, tildesPerWord = 6;
        const std::size_t padding = (letters_ + lettersPerTilde - 1) / lettersPerTilde;
        const std::size_t end = out_.find_last_not_of("\r\n") + 1; // npos + 1 is 0
        std::string tail;
        for (std::size_t i = 0; i < padding; ++i)
            tail += i % tildesPerWord == 0 ? " ~" : "~";
        if (!isWhole || end == 0)
            return out_.insert(end, tail);
        out_.insert(end, tail + "]");
        return out_.insert(out_.find_first_not_of("\r\n"), "[");
    }

private:
    void addCharacter(Character character) {
        const bool isAccented = kind_ == Pseudo::accented && isLetter(character.code);
        letters_ += isLetter(character.code) ? 1U : 0U;
        out_ += isAccented && isAsciiLetter(character.bytes[0]) ? accented(character.bytes[0]) : character.bytes;
        if (isAccented && takesMark(character.code))
            out_ += combiningMark;
    }

    Pseudo kind_;
    std::string out_;
    std::size_t letters_ = 0;
};

// `next` returns the placeholders of the text in order.
template <class Next> std::string transformed(std::string_view text, Pseudo kind, bool isWhole, Next next) {
    Writer writer(kind);
    auto placeholder = next();
    for (std::size_t at = 0, end = 0; at < text.size(); at = end) {
        end = at + unchangedSize(text.substr(at));
        // The placeholder at this place, or those inside a tag.
        for (; placeholder && (placeholder->begin == at || placeholder->begin < end); placeholder = next())
            end = std::max(end, placeholder->end);
        if (end != at) {
            writer.addUnchanged(text.substr(at, end - at));
        } else {
            end = wordEnd(text, at, placeholder ? placeholder->begin : text.size());
            writer.addWord(text.substr(at, end - at));
        }
    }
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
    return transformed(text, kind, /*isWhole=*/true, [&] {
        const auto placeholder = StringTables::nextPlaceholder(text, at);
        at = placeholder ? placeholder->end : at;
        return placeholder;
    });
}

PluralFormat pseudoPlural(const PluralFormat& plural, Pseudo kind) {
    PluralFormat out = plural;
    out.format = transformed(plural.format, kind, /*isWhole=*/true, PluralPieces(plural));
    for (std::size_t i = 0; i < plural.variables.size(); ++i)
        for (std::size_t category = 0; category < Intl::pluralCategoryCount; ++category)
            if (const auto& form = plural.variables[i].forms[category]) {
                constexpr std::size_t anyArgument = 1; // only the places of the pieces are used
                const PluralPieces pieces(plural, *form, plural.variables[i], anyArgument);
                out.variables[i].forms[category] = transformed(*form, kind, /*isWhole=*/false, pieces);
            }
    return out;
}

} // namespace SourceBundle
