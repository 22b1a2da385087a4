// Check/TextRules.h
// The rules about texts, a family in each source file.
// Threads: each function reads the source and writes to its report only.
#pragma once

#include "Check/DevelopmentTexts.h"
#include "Check/Report.h"
#include "SourceBundle/Source.h"
#include <cstddef>
#include <cstdint>
#include <span>
#include <string_view>
#include <vector>

namespace Check {

// The languages whose grammar the texts in hand follow: Base is written in the development language.
struct LanguagePair {
    std::string_view own;
    std::string_view development;
    bool isTranslation; // from one into the other
};

// One text: its key, its language, and the development text of its key; null for a key that has none.
struct Text {
    const SourceBundle::SourceEntry& entry;
    std::string_view language;
    const DevelopmentText* development;
    const LanguagePair& languages;

    // Whether it is the development text itself.
    [[nodiscard]] bool isDevelopment() const noexcept { return development != nullptr && development->entry == &entry; }
    void report(Report& report, Rule rule, std::string message) const {
        report.add(rule, entry, language, std::move(message), development == nullptr ? nullptr : development->entry);
    }
};

// placeholder-mismatch, changed-placeholder, lone-percent.
void checkPlaceholders(const Text& text, Report& report);

// The plural forms that a language needs, a bit for each category. Categories of large numbers only, such as whole
// millions in French, are not needed: `other` is right for them, too.
struct NeededForms {
    std::uint8_t ofWhole;
    std::uint8_t ofFloating;
};
[[nodiscard]] NeededForms neededForms(std::string_view language);

// missing-plural-form.
void checkPluralForms(const Text& text, NeededForms needed, Report& report);

// double-space, repeated-word, for every text; what the development text has too is reported there only.
void checkWording(const Text& text, Report& report);

// untranslated, punctuation-mismatch; for texts that are not the development text.
void checkStyle(const Text& text, Report& report);

// Texts of a table, counted.
struct Coverage {
    std::size_t all = 0;
    std::size_t translated = 0;

    Coverage& operator+=(const Coverage& other) noexcept {
        all += other.all;
        translated += other.translated;
        return *this;
    }
};

// A table that has development texts.
struct DevelopedTable {
    const SourceBundle::SourceTable* table;
    DevelopmentTexts development;
};

// missing-key, unknown-key, space-mismatch, newline-mismatch, and all rules above, for the texts of a table in one
// language. Returns how much is translated.
Coverage checkTable(const SourceBundle::Source& source, const DevelopedTable& table, std::string_view language,
                    Report& report);

// inconsistent-translation. `equal` are development texts that read alike, with their tables' languages.
struct SharedText {
    const SourceBundle::SourceTable* table;
    const SourceBundle::SourceEntry* entry;
};
// The development texts that appear more than once.
[[nodiscard]] std::vector<std::vector<SharedText>> sharedTexts(std::span<const DevelopedTable> tables);
void checkConsistency(const std::vector<std::vector<SharedText>>& shared, std::string_view language, Report& report);

// coverage.
void reportCoverage(std::span<const DevelopedTable> tables, std::string_view language, const Coverage& coverage,
                    Report& report);

// Whether texts in `language` are translations: not those of Base, nor of "en-GB" where "en" is the development
// language.
[[nodiscard]] bool isTranslation(std::string_view language, const SourceBundle::Source& source) noexcept;

} // namespace Check
