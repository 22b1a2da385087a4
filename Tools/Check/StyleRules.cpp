// The rules double-space, repeated-word, punctuation-mismatch, untranslated, inconsistent-translation.
#include "Check/TextRules.h"

#include "Check/Characters.h"
#include "Check/Languages.h"
#include "Generator/CodeText.h"
#include "Generator/Unicode.h"
#include "Runtime/internal/NameMap.h"
#include "StringTables/internal/PluralTable.h"
#include <algorithm>
#include <string>
#include <unordered_map>

namespace Check {

using Generator::quote;
using SourceBundle::LanguageTexts;
using SourceBundle::SourceEntry;
using StringTables::internal::takeCharacter;
namespace Unicode = Generator::Unicode;

namespace {

// Whether `test` holds for the text, or for any string of a plural.
template <class Test> bool isAny(const SourceEntry& entry, const Test& test) {
    if (entry.plural == nullptr)
        return test(entry.text);
    if (test(entry.plural->format))
        return true;
    for (const auto& variable : entry.plural->variables)
        for (const auto& form : variable.forms)
            if (form && test(*form))
                return true;
    return false;
}

// Whether there are two spaces between words. Those at the beginning or end of a line are ignored.
bool hasDoubleSpace(std::string_view text) {
    for (std::size_t at = findPart(text, "  "); at != text.npos; at = findPart(text, "  ", at)) {
        const std::size_t end = std::min(text.find_first_not_of(' ', at), text.size());
        if (at > 0 && text[at - 1] != '\n' && end < text.size() && text[end] != '\n')
            return true;
        at = end;
    }
    return false;
}

// Beyond ASCII, the characters that may begin an identifier are the letters.
bool isLetter(char32_t c) {
    return c < 0x80 ? (c >= 'a' && c <= 'z') || (c >= 'A' && c <= 'Z') : Unicode::beginsIdentifier(c);
}
// 0x2019 is the typographic apostrophe.
bool isInWord(char32_t c) {
    return isLetter(c) || c == '-' || c == '\'' || c == 0x2019 || (c >= '0' && c <= '9') ||
           (c >= 0x80 && Unicode::continuesIdentifier(c));
}

// Whether the token is a word without punctuation.
bool isWord(std::string_view token) {
    bool hasLetter = false;
    while (!token.empty()) {
        const char32_t c = takeCharacter(token);
        if (!isInWord(c))
            return false;
        hasLetter |= isLetter(c);
    }
    return hasLetter;
}

// Whether the first word of `token` is `word`, ignoring case.
bool repeats(std::string_view word, std::string_view token) {
    while (!word.empty()) {
        if (token.empty())
            return false;
        const char32_t one = takeCharacter(word), other = takeCharacter(token);
        if (one != other && Unicode::lower(one) != Unicode::lower(other))
            return false;
    }
    return token.empty() || !isInWord(takeCharacter(token));
}

std::string lowered(std::string_view word) {
    std::u32string out;
    while (!word.empty())
        out += Unicode::lower(takeCharacter(word));
    return Unicode::encoded(out);
}

// A token is a word with its punctuation. Removes the next one from `text` and returns it; empty at the end.
std::string_view takeToken(std::string_view& text) {
    constexpr auto isBlank = [](char c) { return c == ' ' || c == '\t' || c == '\r' || c == '\n'; };
    const auto begin = std::ranges::find_if_not(text, isBlank);
    const auto end = std::ranges::find_if(begin, text.end(), isBlank);
    const std::string_view token(begin, end);
    text = std::string_view(end, text.end());
    return token;
}

// The first word that is repeated, or an empty string.
std::string_view repeatedWord(std::string_view text, std::string_view language) {
    std::string_view last = takeToken(text);
    for (std::string_view token = takeToken(text); !token.empty(); token = takeToken(text)) {
        if (repeats(last, token) && isWord(last) && !mayRepeat(lowered(last), language))
            return last;
        last = token;
    }
    return {};
}

std::string_view repeatedWord(const SourceEntry& entry, std::string_view language) {
    std::string_view word;
    isAny(entry, [&](std::string_view text) { // is called until it returns true
        word = repeatedWord(text, language);
        return !word.empty();
    });
    return word;
}

// Whether there is something to translate: letters outside of placeholders, and not just a web or mail address.
bool isProse(std::string_view text) {
    const bool hasSpace = text.find(' ') != text.npos;
    if (!hasSpace && (text.find("://") != text.npos || text.starts_with("www.")))
        return false;
    std::size_t at = 0;
    const auto hasLetter = [](std::string_view part) {
        while (!part.empty())
            if (isLetter(takeCharacter(part)))
                return true;
        return false;
    };
    while (const auto placeholder = StringTables::nextPlaceholder(text, at)) {
        if (hasLetter(text.substr(at, placeholder->begin - at)))
            return true;
        at = placeholder->end;
    }
    const std::string_view rest = text.substr(at);
    return hasLetter(rest) && (hasSpace || rest.find('@') == rest.npos);
}

// Whether the text has at most one word besides placeholders, so that a full stop may mark an abbreviation: "%d sec.".
bool mayBeAbbreviation(std::string_view text) {
    int words = 0;
    for (std::string_view token = takeToken(text); !token.empty(); token = takeToken(text))
        words += !token.starts_with('%');
    return words <= 1;
}

// Whether the text ends with the same mark as the development text, or may end with another.
bool hasCorrectEnd(const Text& text) {
    const Mark own = lastMark(text.entry.text, text.languages.own);
    const Mark other = lastMark(text.development->entry->text, text.languages.development);
    const auto isOptional = [](Mark mark) { return mark == Mark::none || mark == Mark::fullStop; };
    if (own == other)
        return true;
    const bool areAbbreviations =
        mayBeAbbreviation(text.entry.text) && mayBeAbbreviation(text.development->entry->text);
    return isOptional(own) && isOptional(other) &&
           (areAbbreviations || mayOmitFullStop(text.languages.own) || mayOmitFullStop(text.languages.development));
}

} // namespace

void checkWording(const Text& text, Report& report) {
    const SourceEntry* development =
        text.development == nullptr || text.isDevelopment() ? nullptr : text.development->entry;
    if (isAny(text.entry, hasDoubleSpace) && (development == nullptr || !isAny(*development, hasDoubleSpace)))
        text.report(report, Rule::doubleSpace, quote(text.entry.key) + " has two adjacent spaces");
    const std::string_view word = repeatedWord(text.entry, text.languages.own);
    if (!word.empty() && (development == nullptr || repeatedWord(*development, text.languages.development).empty()))
        text.report(report, Rule::repeatedWord, quote(text.entry.key) + " repeats the word " + quote(word));
}

void checkStyle(const Text& text, Report& report) {
    const SourceEntry& development = *text.development->entry;
    if (text.languages.isTranslation && text.entry.text == development.text) {
        if (isProse(development.text))
            text.report(report, Rule::untranslated,
                        quote(text.entry.key) + " has the development text " + quote(development.text));
    } else if (!hasCorrectEnd(text)) {
        text.report(report, Rule::punctuationMismatch,
                    quote(text.entry.key) + " does not end with the punctuation of the development text " +
                        quote(development.text));
    }
}

std::vector<std::vector<SharedText>> sharedTexts(std::span<const CheckedTable> tables) {
    Runtime::NameMap<std::size_t, std::string_view> numbers; // of the groups in `all`, by text
    std::vector<std::vector<SharedText>> all;
    for (const CheckedTable& table : tables)
        for (const DevelopmentText& text : table.development.all()) {
            if (text.entry->plural != nullptr || text.entry->text.empty())
                continue;
            const auto [known, isNew] = numbers.try_emplace(text.entry->text, all.size());
            if (isNew)
                all.emplace_back();
            all[known->second].push_back({table.table, text.entry});
        }
    std::erase_if(all, [](const auto& texts) { return texts.size() < 2; });
    return all;
}

namespace {

// The texts of each table in one language; null where it has none.
using TextsByTable = std::unordered_map<const SourceBundle::SourceTable*, const LanguageTexts*>;

// The translation of a development text; null if there is none, or if it is empty, a plural or the same text.
const SourceEntry* translationOf(const SharedText& text, const TextsByTable& translations) {
    const LanguageTexts* texts = translations.at(text.table);
    const SourceEntry* entry = texts == nullptr ? nullptr : texts->find(text.entry->key);
    const bool isOther =
        entry != nullptr && entry->plural == nullptr && !entry->text.empty() && entry->text != text.entry->text;
    return isOther ? entry : nullptr;
}

// Reports the first text whose translation differs from that of an earlier one.
void checkConsistency(const std::vector<SharedText>& texts, const TextsByTable& translations, std::string_view language,
                      Report& report) {
    const SourceEntry* first = nullptr;
    for (const SharedText& text : texts) {
        const SourceEntry* entry = translationOf(text, translations);
        if (entry == nullptr || Report::isAllowed(Rule::inconsistentTranslation, *entry) ||
            Report::isAllowed(Rule::inconsistentTranslation, *text.entry))
            continue;
        if (first == nullptr)
            first = entry;
        else if (first->text != entry->text)
            return report.add(Rule::inconsistentTranslation, *entry, language,
                              quote(text.entry->text) + " is " + quote(entry->text) + " for the key " +
                                  quote(entry->key) + ", and " + quote(first->text) + " for " + quote(first->key),
                              text.entry);
    }
}

} // namespace

void checkConsistency(const std::vector<std::vector<SharedText>>& shared, std::string_view language, Report& report) {
    TextsByTable translations;
    for (const std::vector<SharedText>& texts : shared)
        for (const SharedText& text : texts)
            if (const auto [known, isNew] = translations.try_emplace(text.table); isNew)
                known->second = text.table->find(language);
    for (const std::vector<SharedText>& texts : shared)
        checkConsistency(texts, translations, language, report);
}

} // namespace Check
