// Check/TextRules.h
// The rules for texts; each of PlaceholderRules.cpp, PluralRules.cpp, StyleRules.cpp and TableRules.cpp has some.
// Threads: functions only read the source and write to their report.
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

// The languages of a text and its development text. Texts in Base.lproj are in the development language.
struct LanguagePair {
    std::string_view own;
    std::string_view development;
    bool isTranslation; // see isTranslation() below
};

// One text.
struct Text {
    const SourceBundle::SourceEntry& entry;
    std::string_view language;          // as the source names it: "de", "Base"
    const DevelopmentText* development; // of the same key, or null
    const LanguagePair& languages;

    // Whether this is the development text itself.
    [[nodiscard]] bool isDevelopment() const noexcept { return development != nullptr && development->entry == &entry; }
    void report(Report& report, Rule rule, std::string message) const {
        report.add(rule, entry, language, std::move(message), development == nullptr ? nullptr : development->entry);
    }
};

// placeholder-mismatch, changed-placeholder, lone-percent.
void checkPlaceholders(const Text& text, Report& report);

// The plural forms that a language needs, as bit sets by category. Categories for large numbers only, such as whole
// millions in French, are not required, because `other` is acceptable for them.
struct NeededForms {
    std::uint8_t ofWhole;    // of a variable that takes an integer
    std::uint8_t ofFloating; // of a variable that takes a floating-point number
};
[[nodiscard]] NeededForms neededForms(std::string_view language);

// missing-plural-form. False if a variable has no forms at all, so that there is no text to check.
[[nodiscard]] bool checkPluralForms(const Text& text, NeededForms needed, Report& report);

// double-space, repeated-word. A fault that the development text has, too, is reported only there.
void checkWording(const Text& text, Report& report);

// untranslated, punctuation-mismatch. Precondition: `text` has a development text and is not that text itself.
void checkStyle(const Text& text, Report& report);

// The number of texts to be translated, and of those that are.
struct Coverage {
    std::size_t all = 0;
    std::size_t translated = 0;

    Coverage& operator+=(const Coverage& other) noexcept {
        all += other.all;
        translated += other.translated;
        return *this;
    }
};

// A table with its development texts.
struct CheckedTable {
    const SourceBundle::SourceTable* table;
    DevelopmentTexts development;
};

// missing-key, unknown-key, space-mismatch, newline-mismatch, and all rules above, for the texts of a table in one
// language. Returns the coverage: zeros if these texts are not translations or a file of them is damaged.
Coverage checkTable(const SourceBundle::Source& source, const CheckedTable& table, std::string_view language,
                    Report& report);

// A key that has the same development text as another one, with its table.
struct SharedText {
    const SourceBundle::SourceTable* table;
    const SourceBundle::SourceEntry* entry;
};
// All such keys, grouped by development text, without plurals and empty texts.
[[nodiscard]] std::vector<std::vector<SharedText>> sharedTexts(std::span<const CheckedTable> tables);
// inconsistent-translation.
void checkConsistency(const std::vector<std::vector<SharedText>>& shared, std::string_view language, Report& report);

// coverage: one finding, in the first file of the language, or none if there is nothing to translate.
void reportCoverage(std::span<const CheckedTable> tables, std::string_view language, const Coverage& coverage,
                    Report& report);

// Whether texts in `language` are translations. Those of Base are not, nor those of "en-GB" if the development language
// is "en".
[[nodiscard]] bool isTranslation(std::string_view language, const SourceBundle::Source& source) noexcept;

} // namespace Check
