// SourceBundle/Source.h
// A module's resources as people edit them, from one or more folders: the texts of all tables and languages, and the
// paths of the asset catalogs (see Catalogs.h). All tools read sources through this class.
// Text: UTF-8. Threads: immutable after reading. Ownership: the source owns everything that its entries refer to;
// entries stay valid when it is moved.
#pragma once

#include "SourceBundle/Diagnostics.h"
#include "SourceBundle/SourceFiles.h"
#include "StringTables/internal/BundleLayout.h"
#include "StringTables/internal/Index.h"
#include <cstdint>
#include <filesystem>
#include <memory>
#include <set>
#include <span>
#include <string>
#include <string_view>
#include <vector>

namespace StringTables {
struct PluralFormat;
}

namespace SourceBundle {

// The state of a translation in a string catalog; texts in other files count as translated.
enum class State : std::uint8_t { translated, isNew, needsReview };

// A key's text in one language.
struct SourceEntry {
    std::string_view key;
    std::string_view text;                              // for a plural, its otherText() (PluralText.h)
    const StringTables::PluralFormat* plural = nullptr; // null for a plain text
    std::string_view comment{};                         // for translators
    const TableFile* file = nullptr;
    std::uint32_t line = 0; // of the key, counted from 1, like the column; both are 0 in a binary table
    std::uint32_t column = 0;
    State state = State::translated;
    bool isStale = false;       // the string catalog marks the key as no longer used in code
    bool isTranslatable = true; // false if the string catalog marks the key as not to be translated

    // An error located at the entry.
    [[nodiscard]] Runtime::Error error(std::string message) const;
};

// The texts of one table in one language.
class LanguageTexts {
public:
    explicit LanguageTexts(std::string name) : language(std::move(name)) {}

    // The key's entry, or null.
    [[nodiscard]] const SourceEntry* find(std::string_view key) const;
    // The same, but first looks at the entry after `last` (one of entries(); null: the first entry), because most
    // languages have their keys in the same order.
    [[nodiscard]] const SourceEntry* findAfter(const SourceEntry* last, std::string_view key) const;
    // Adds an entry; false if the key already exists.
    bool add(const SourceEntry& entry);
    // Adds the entries of `other` whose keys do not exist yet; takes over its memory if there are no entries yet.
    void add(LanguageTexts&& other);
    // Adds an entry or replaces the one with the same key.
    void replace(const SourceEntry& entry);
    void reserve(std::size_t count) { entries_.reserve(count); }

    std::string language;                // "de", "pt-BR", "Base"
    std::vector<const TableFile*> files; // that were read for the texts; none for a pseudo-language
    bool isDamaged = false;              // keys may be missing: a file is unreadable or left out, see Source::read()

    // Every key once, in file order.
    [[nodiscard]] const std::vector<SourceEntry>& entries() const noexcept { return entries_; }

private:
    std::vector<SourceEntry> entries_;
    StringTables::internal::Index index_;
};

struct SourceTable {
    std::string name;                     // "Localizable"
    std::vector<LanguageTexts> languages; // sorted by name

    // The texts in `language`, or null.
    [[nodiscard]] const LanguageTexts* find(std::string_view language) const;
};

struct SourceOptions {
    // Empty: CFBundleDevelopmentRegion of Info.plist, else the source language of the first string catalog, else "en".
    std::string developmentLanguage{};
    // Adds the pseudo-languages (SourceBundle/PseudoText.h) to every table that does not have them.
    bool addsPseudoLanguages = false;
};

enum class Pseudo : std::uint8_t; // in PseudoText.h

class Source {
public:
    // Reads the folders as one source. Problems are added to `diagnostics`; after an error the source contains what
    // could be read. Two files with the same table and language are an error that names both, and only the first is
    // used. TABLE.strings and TABLE.stringsdict together are not an error: if a key is in both, the plural is used.
    [[nodiscard]] static Source read(std::span<const std::filesystem::path> folders, const SourceOptions& options,
                                     Diagnostics& diagnostics);
    // Reads the tables and the Info.plist of a compiled bundle.
    [[nodiscard]] static Source readBundle(const std::filesystem::path& bundle, Diagnostics& diagnostics);
    Source(Source&&) noexcept;
    Source& operator=(Source&&) noexcept;
    ~Source();

    std::string developmentLanguage;
    std::vector<SourceTable> tables;             // sorted by name
    std::vector<std::filesystem::path> catalogs; // *.xcassets
    std::vector<std::filesystem::path> infos;    // Info.plist of the folders that have one

    // The texts of `table` that determine which accessors exist: those of the development language, then those of Base
    // with other keys. Points into the source. Empty for a table without either.
    [[nodiscard]] std::vector<const SourceEntry*> developmentEntries(const SourceTable& table) const;
    // The languages of all tables, including Base.
    [[nodiscard]] std::set<std::string> languages() const;
    // Whether the table exists in the development language or Base, even without texts.
    [[nodiscard]] bool hasDevelopmentLanguage(const SourceTable& table) const;

    struct Storage; // internal

private:
    Source();
    static Source read(SourceFiles files, const SourceOptions& options, Diagnostics& diagnostics);
    void addPseudoLanguages();
    SourceEntry pseudoEntry(const SourceEntry& development, Pseudo kind);

    std::unique_ptr<Storage> storage_;
};

// The name of Base.lproj, whose texts are used where the user's language has none.
inline constexpr std::string_view baseLanguage = StringTables::bundleLayout::baseName;

} // namespace SourceBundle
