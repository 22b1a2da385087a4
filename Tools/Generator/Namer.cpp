#include "Generator/Namer.h"

#include "Generator/ReservedNames.h"
#include "Generator/Unicode.h"
#include <algorithm>
#include <iterator>

namespace Generator::Namer {

namespace {

using namespace Unicode;
using Words = std::vector<std::u32string>;

// Names in generated code that a namespace in the tree would hide or clash with.
bool clashes(std::string_view nameSpace) {
    return nameSpace == "detail" || nameSpace == "std" || nameSpace == "tr";
}

// Whether the name is a macro of <cinttypes>: "PRId64", "SCNxFAST8".
bool isNumberFormat(std::string_view word) {
    if (word.size() < 5 || !(word.starts_with("PRI") || word.starts_with("SCN")) ||
        std::string_view("diouxX").find(word[3]) == std::string_view::npos)
        return false;
    word.remove_prefix(4);
    if (word == "MAX" || word == "PTR")
        return true;
    for (const std::string_view kind : {"FAST", "LEAST"})
        if (word.starts_with(kind))
            word.remove_prefix(kind.size());
    constexpr std::string_view sizes[] = {"8", "16", "32", "64"};
    return std::ranges::find(sizes, word) != std::end(sizes);
}

// Whether the name could be the macro of an error or a signal ("EOF", "EINTR", "SIGINT"): C reserves all such names for
// headers, which add more.
bool isErrorOrSignal(std::string_view word) {
    return word.size() > 2 && (word.starts_with('E') || word.starts_with("SIG")) &&
           std::ranges::all_of(word, [](char c) { return (c >= 'A' && c <= 'Z') || (c >= '0' && c <= '9'); });
}

bool isReserved(std::string_view word) {
    return std::ranges::binary_search(reservedNames, word) || isNumberFormat(word) || isErrorOrSignal(word);
}

// Whether the name is an identifier without an underscore at its beginning and without two adjacent ones: C++ reserves
// the latter and many of the former.
bool isIdentifier(std::string_view name) {
    const std::u32string text = decoded(name);
    return !text.empty() && text[0] != '_' && beginsIdentifier(text[0]) &&
           std::ranges::all_of(text, continuesIdentifier) && text.find(U"__") == std::u32string::npos;
}

// Whether the character is not ASCII and its compatibility form is allowed in C++ identifiers: "No" for "№".
bool isLetterLike(char32_t c) {
    if (c < 0x80)
        return false;
    const std::u32string plain = compatible({&c, 1});
    return !plain.empty() && std::ranges::all_of(plain, continuesIdentifier);
}

// The words between the separators; none is empty.
Words split(std::u32string_view text, auto isSeparator) {
    Words words(1);
    for (const char32_t c : text) {
        if (!isSeparator(c))
            words.back() += c;
        else if (!words.back().empty())
            words.emplace_back();
    }
    if (words.back().empty())
        words.pop_back();
    return words;
}

std::u32string joined(const Words& words, std::u32string_view separator) {
    std::u32string text;
    for (const std::u32string& word : words)
        text.append(text.empty() ? U"" : separator).append(word);
    return text;
}

// "TL1" gives "Tl1", "4k" gives "4K".
void toTitleCase(std::u32string& word) {
    bool upperNext = true;
    for (char32_t& c : word) {
        c = upperNext ? upper(c) : lower(c);
        upperNext = isDigit(c);
    }
}

// The name by the rule of Docs/naming.md for groups; for accessors, lowerFirstWord() is one more step.
std::u32string name(std::string_view component) {
    Words chunks = split(decoded(component), [](char32_t c) { return !continuesIdentifier(c) && !isLetterLike(c); });
    for (std::u32string& chunk : chunks)
        chunk[0] = upper(chunk[0]);

    const std::u32string text = joined(chunks, U"_");
    Words words = split(text, [](char32_t c) { return c == '_'; });
    const bool hasLower = std::ranges::any_of(text, isLower);
    for (std::u32string& word : words) {
        if (hasLower)
            word[0] = upper(word[0]);
        else
            toTitleCase(word);
    }
    const std::u32string whole = joined(words, U"");
    return !whole.empty() && isDigit(whole[0]) ? U'_' + whole : whole;
}

// "SportFeed" gives "sportFeed", "NA" gives "na", "URLPath" gives "urlPath".
void lowerFirstWord(std::u32string& name) {
    const auto runEnd = std::ranges::find_if_not(name, isCapital);
    const bool nextWordBegins = runEnd - name.begin() > 1 && runEnd != name.end() && isLower(*runEnd);
    std::transform(name.begin(), runEnd - (nextWordBegins ? 1 : 0), name.begin(), lower);
}

} // namespace

std::vector<std::string_view> components(std::string_view key) {
    std::vector<std::string_view> parts;
    for (std::size_t begin = 0; begin < key.size();) {
        const std::size_t end = std::min(key.find('.', begin), key.size());
        if (end != begin)
            parts.push_back(key.substr(begin, end - begin));
        begin = end + 1;
    }
    return parts;
}

std::string groupName(std::string_view component) {
    return encoded(name(component));
}

std::string entryName(std::string_view component) {
    std::u32string entry = name(component);
    lowerFirstWord(entry);
    return encoded(entry);
}

std::string assetName(std::string_view asset) {
    Words words =
        split(decoded(asset), [](char32_t c) { return c == '_' || (!continuesIdentifier(c) && !isLetterLike(c)); });
    for (std::size_t i = 1; i < words.size(); ++i)
        words[i][0] = upper(words[i][0]);
    return encoded(joined(words, U""));
}

std::string spelling(std::string_view name) {
    std::u32string spelled;
    for (const char32_t c : decoded(name)) {
        if (continuesIdentifier(c))
            spelled += c;
        else if (isLetterLike(c))
            spelled += compatible({&c, 1});
    }
    spelled = composed(spelled);
    if (!spelled.empty() && !beginsIdentifier(spelled[0]))
        spelled.insert(0, 1, U'_');
    const std::string word = encoded(spelled);
    return isReserved(word) ? word + '_' : word;
}

std::string tableSpelling(std::string_view table) {
    const std::string spelled = isIdentifier(table) ? spelling(table) : spelling(groupName(table));
    return clashes(spelled) ? spelled + '_' : spelled;
}

bool isCppSpelling(std::string_view name) {
    return isIdentifier(name) && spelling(name) == name;
}

bool isNamespaceSpelling(std::string_view name) {
    return isCppSpelling(name) && !clashes(name);
}

bool isModuleName(std::string_view name) {
    const bool isStdNamespace = name.starts_with("std") && name.find_first_not_of("0123456789", 3) == name.npos;
    return isCppSpelling(name) && !isStdNamespace && name != "posix" && name != "main";
}

} // namespace Generator::Namer
