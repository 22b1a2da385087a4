#include "Check/Languages.h"

#include "Check/Characters.h"
#include <algorithm>
#include <array>
#include <utility>

namespace Check {

namespace {

template <std::size_t count>
bool isOneOf(const std::array<std::string_view, count>& languages, std::string_view tag) noexcept {
    return std::ranges::find(languages, primaryLanguage(tag)) != languages.end();
}

// In these languages repeating a word is grammatical: plurals, emphasis.
constexpr std::array<std::string_view, 13> repeating = {"bn", "fa", "gu", "hi", "kn", "ml", "mr",
                                                        "pa", "ta", "te", "tr", "ur", "vi"};

// Language, and a word of it that may follow itself.
constexpr std::pair<std::string_view, std::string_view> repeatable[] = {
    {"da", "de"},  {"da", "det"},  {"de", "das"},  {"de", "der"},  {"de", "die"}, {"de", "sie"},
    {"en", "had"}, {"en", "that"}, {"fr", "nous"}, {"fr", "vous"}, {"hu", "az"},  {"hu", "ez"},
    {"nb", "de"},  {"nb", "det"},  {"nl", "dat"},  {"nl", "die"},  {"nl", "je"},  {"nl", "ze"},
    {"no", "de"},  {"no", "det"},  {"sv", "de"},   {"sv", "den"},  {"sv", "det"}};

// Includes opening quotation marks, because some languages close quotations with them: »text«.
bool isClosing(char32_t c) noexcept {
    constexpr std::u32string_view closing = U"\"')]}\u00AB\u00BB\u2018\u2019\u201C\u201D\u201E\u2039\u203A"
                                            U"\u300B\u300D\u300F\u3011\uFF09\uFF3D\uFF5D";
    return closing.find(c) != closing.npos;
}

Mark markOf(char32_t c, bool isGreek) noexcept {
    switch (c) {
    case U'.':
    case U'\u0589': // Armenian
    case U'\u06D4': // Urdu
    case U'\u0964': // danda
    case U'\u0965': // double danda
    case U'\u104A': // Burmese
    case U'\u104B': // Burmese
    case U'\u1362': // Ethiopic
    case U'\u17D4': // Khmer
    case U'\u3002': // ideographic
    case U'\uFF0E': // full-width
    case U'\uFF61': // half-width
        return Mark::fullStop;
    case U'?':
    case U'\u037E': // Greek
    case U'\u055E': // Armenian
    case U'\u061F': // Arabic
    case U'\u1367': // Ethiopic
    case U'\uFF1F': // full-width
        return Mark::question;
    case U'!':
    case U'\u055C': // Armenian
    case U'\uFF01': // full-width
        return Mark::exclamation;
    case U':':
    case U'\u1365': // Ethiopic
    case U'\uFF1A': // full-width
        return Mark::colon;
    case U';':
        return isGreek ? Mark::question : Mark::semicolon;
    case U'\u0387': // Greek
    case U'\u00B7': // its canonical form
        return isGreek ? Mark::semicolon : Mark::none;
    case U'\u061B': // Arabic
    case U'\uFF1B': // full-width
        return Mark::semicolon;
    case U',':
    case U'\u060C': // Arabic
    case U'\u3001': // ideographic
    case U'\uFF0C': // full-width
    case U'\uFF64': // half-width
        return Mark::comma;
    case U'\u2026':
    case U'\u22EF': // Chinese
        return Mark::ellipsis;
    default:
        return Mark::none;
    }
}

} // namespace

std::string_view primaryLanguage(std::string_view tag) noexcept {
    return tag.substr(0, tag.find_first_of("-_"));
}

bool areVariants(std::string_view one, std::string_view other) noexcept {
    constexpr std::array<std::string_view, 2> inSeveralScripts = {"sr", "zh"};
    return one == other || (primaryLanguage(one) == primaryLanguage(other) && !isOneOf(inSeveralScripts, one));
}

bool writesWithoutSpaces(std::string_view tag) noexcept {
    return isOneOf(std::array<std::string_view, 7>{"ja", "km", "lo", "my", "th", "yue", "zh"}, tag);
}

bool mayOmitFullStop(std::string_view tag) noexcept {
    return writesWithoutSpaces(tag);
}

bool mayRepeat(std::string_view word, std::string_view tag) noexcept {
    if (writesWithoutSpaces(tag) || isOneOf(repeating, tag))
        return true;
    return std::ranges::find(repeatable, std::pair(primaryLanguage(tag), word)) != std::end(repeatable);
}

Mark lastMark(std::string_view text, std::string_view tag) noexcept {
    char32_t last = 0;
    do
        last = takeLastCharacter(text);
    while (last != 0 && (isSpace(last) || isInvisible(last) || isClosing(last)));
    const Mark mark = markOf(last, primaryLanguage(tag) == "el");
    // `text` now ends before the mark.
    return mark == Mark::fullStop && text.ends_with("..") ? Mark::ellipsis : mark;
}

} // namespace Check
