// The rules missing-key, unknown-key, space-mismatch, newline-mismatch, coverage, and the other rules for each text of
// a table.
#include "Check/TextRules.h"

#include "Check/Characters.h"
#include "Check/Languages.h"
#include "Generator/CodeText.h"
#include <algorithm>
#include <string>
#include <utility>

namespace Check {

using Generator::quote;
using SourceBundle::LanguageTexts;
using SourceBundle::Source;
using SourceBundle::SourceEntry;
using SourceBundle::State;
using SourceBundle::TableFile;

namespace {

// Whether the text begins (or ends) with a space, ignoring line breaks.
bool beginsWithSpace(std::string_view text) {
    while (!text.empty()) {
        const char32_t c = StringTables::internal::takeCharacter(text);
        if (!isLineBreak(c))
            return isSpace(c);
    }
    return false;
}
bool endsWithSpace(std::string_view text) {
    while (const char32_t c = takeLastCharacter(text))
        if (!isLineBreak(c))
            return isSpace(c);
    return false;
}

// "begins with" or "begins without", or an empty string if nothing is wrong.
std::string differenceOf(const char* verb, bool hasSpace, bool developmentHasSpace, const Text& text) {
    // If only one of the languages writes without spaces, its text may omit the space. `spaced` is the language whose
    // text has it.
    const auto [spaced, other] = hasSpace ? std::pair(text.languages.own, text.languages.development)
                                          : std::pair(text.languages.development, text.languages.own);
    const bool mayDiffer = !writesWithoutSpaces(spaced) && writesWithoutSpaces(other);
    return hasSpace != developmentHasSpace && !mayDiffer ? std::string(verb) + (hasSpace ? " with" : " without") : "";
}

void checkEdges(const Text& text, Report& report) {
    const std::string_view own = text.entry.text, other = text.development->entry->text;
    const std::string begin = differenceOf("begins", beginsWithSpace(own), beginsWithSpace(other), text);
    const std::string end = differenceOf("ends", endsWithSpace(own), endsWithSpace(other), text);
    if (!begin.empty() || !end.empty())
        text.report(report, Rule::spaceMismatch,
                    quote(text.entry.key) + " " + begin + (begin.empty() || end.empty() ? "" : " and ") + end +
                        " a space, unlike the development text");
}

// Counts "\n", "\r" and "\r\n" as one line break each.
std::size_t lineBreaks(std::string_view text) {
    auto count = static_cast<std::size_t>(std::ranges::count(text, '\n'));
    for (std::size_t at = text.find('\r'); at != text.npos; at = text.find('\r', at + 1))
        count += at + 1 == text.size() || text[at + 1] != '\n';
    return count;
}

void checkLineBreaks(const Text& text, Report& report) {
    const std::size_t own = lineBreaks(text.entry.text), other = lineBreaks(text.development->entry->text);
    if (own != other)
        text.report(report, Rule::newlineMismatch,
                    quote(text.entry.key) + " has " + std::to_string(own) +
                        (own == 1 ? " line break" : " line breaks") + ", the development text " +
                        std::to_string(other));
}

bool needsTranslation(const SourceEntry& development) {
    return development.isTranslatable && !development.isStale && !development.text.empty();
}

// Checks one table in one language.
class TableCheck {
public:
    TableCheck(const Source& source, const CheckedTable& table, const LanguageTexts& texts, Report& report)
        : development_(table.development), texts_(texts), report_(report) {
        languages_.development = source.developmentLanguage;
        languages_.own = texts.language == SourceBundle::baseLanguage ? languages_.development : texts.language;
        languages_.isTranslation = isTranslation(texts.language, source);
        needed_ = neededForms(languages_.own);
    }

    void checkTexts() {
        const DevelopmentText* last = nullptr;
        for (const SourceEntry& entry : texts_.entries()) {
            const DevelopmentText* development = development_.findAfter(last, entry.key);
            report_.checkComment(entry);
            checkText({entry, texts_.language, development, languages_});
            if (development != nullptr)
                last = development;
        }
    }

    // Reports each missing text where it would be, and each empty one. Counts the texts.
    Coverage checkKeys() {
        Coverage coverage;
        const SourceEntry* before = nullptr;
        for (const DevelopmentText& text : development_.all()) {
            if (!needsTranslation(*text.entry))
                continue;
            const SourceEntry* entry = texts_.findAfter(before, text.entry->key);
            ++coverage.all;
            if (entry == nullptr)
                reportMissing(*text.entry, before);
            else if (entry->text.empty())
                report_.add(Rule::missingKey, *entry, texts_.language, quote(entry->key) + " has an empty text",
                            text.entry);
            else
                coverage.translated += entry->state != State::isNew;
            before = entry == nullptr ? before : entry;
        }
        return coverage;
    }

private:
    void checkText(const Text& text) {
        if (text.development == nullptr)
            return checkUnknown(text);
        const bool isEmptyTranslation = text.entry.text.empty() && !text.development->entry->text.empty();
        if (isEmptyTranslation) // checkKeys() reports it if it is needed
            return;
        checkPlaceholders(text, report_);
        if (!checkPluralForms(text, needed_, report_))
            return;
        checkWording(text, report_);
        if (text.isDevelopment() || !text.development->entry->isTranslatable)
            return;
        checkEdges(text, report_);
        checkLineBreaks(text, report_);
        checkStyle(text, report_);
    }

    void checkUnknown(const Text& text) {
        if (!development_.isDamaged())
            text.report(report_, Rule::unknownKey, quote(text.entry.key) + " is not a key of the development texts");
    }

    void reportMissing(const SourceEntry& development, const SourceEntry* before) {
        if (Report::isAllowed(Rule::missingKey, development))
            return;
        Finding finding{.rule = Rule::missingKey,
                        .file = development.file->path,
                        .line = development.line,
                        .column = development.column,
                        .language = texts_.language,
                        .subject = std::string(development.key),
                        .message = quote(development.key) + " has no text in " + texts_.language};
        // In a string catalog the key has one place for all languages.
        if (development.file->kind != TableFile::Kind::catalog)
            placeInLanguage(finding, development.file->kind, before);
        report_.add(std::move(finding));
    }

    // Moves the finding into the language's file of this kind, or into any of its files if it has none of this kind: to
    // the entry `before` if that is there, or else to the beginning.
    void placeInLanguage(Finding& finding, TableFile::Kind kind, const SourceEntry* before) {
        const auto found = std::ranges::find(texts_.files, kind, &TableFile::kind);
        const bool hasKind = found != texts_.files.end();
        const bool isThere = before != nullptr && (!hasKind || before->file->kind == kind);
        const TableFile* const file = hasKind ? *found : texts_.files.front();
        finding.file = (isThere ? before->file : file)->path;
        finding.line = isThere ? before->line : 1;
        finding.column = 1;
    }

    const DevelopmentTexts& development_;
    const LanguageTexts& texts_;
    Report& report_;
    LanguagePair languages_{};
    NeededForms needed_{};
};

// Reports a missing table once, instead of each of its keys.
Coverage reportMissingTable(const CheckedTable& table, std::string_view language, Report& report) {
    Coverage coverage;
    const SourceEntry* first = nullptr;
    for (const DevelopmentText& text : table.development.all())
        if (needsTranslation(*text.entry)) {
            ++coverage.all;
            if (first == nullptr && !Report::isAllowed(Rule::missingKey, *text.entry))
                first = text.entry;
        }
    if (first != nullptr)
        report.add({.rule = Rule::missingKey,
                    .file = first->file->path,
                    .line = first->line,
                    .column = first->column,
                    .language = std::string(language),
                    .subject = {},
                    .message = "the table " + quote(table.table->name) + " has none of its texts (" +
                               std::to_string(coverage.all) + ") in " + std::string(language)});
    return coverage;
}

} // namespace

bool isTranslation(std::string_view language, const Source& source) noexcept {
    return language != SourceBundle::baseLanguage && !areVariants(language, source.developmentLanguage);
}

Coverage checkTable(const Source& source, const CheckedTable& table, std::string_view language, Report& report) {
    const LanguageTexts* texts = table.table->find(language);
    if (texts == nullptr || texts->files.empty())
        return isTranslation(language, source) ? reportMissingTable(table, language, report) : Coverage();
    TableCheck check(source, table, *texts, report);
    check.checkTexts();
    return isTranslation(language, source) && !texts->isDamaged ? check.checkKeys() : Coverage();
}

void reportCoverage(std::span<const CheckedTable> tables, std::string_view language, const Coverage& coverage,
                    Report& report) {
    if (coverage.all == 0)
        return;
    for (const CheckedTable& table : tables)
        if (const LanguageTexts* texts = table.table->find(language); texts != nullptr && !texts->files.empty())
            return report.add({.rule = Rule::coverage,
                               .file = texts->files.front()->path,
                               .line = 1,
                               .column = 1,
                               .language = std::string(language),
                               .subject = {},
                               .message = std::string(language) + " has " + std::to_string(coverage.translated) +
                                          " of " + std::to_string(coverage.all) + " texts (" +
                                          std::to_string(coverage.translated * 100 / coverage.all) + " %)"});
}

} // namespace Check
