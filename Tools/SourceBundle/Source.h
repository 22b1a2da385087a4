// SourceBundle/Source.h
// A module's resources as people edit them, from one or more folders: the texts of every table and language, and where
// the asset catalogs are. Every tool reads its source through this.
// Text: UTF-8. Threads: immutable after reading. Ownership: the source owns what its entries refer to; they stay valid
// when it is moved.
#pragma once

#include "SourceBundle/Diagnostics.h"
#include "SourceBundle/SourceFiles.h"
#include "StringTables/internal/BundleLayout.h"
#include <cstdint>
#include <filesystem>
#include <memory>
#include <span>
#include <string>
#include <string_view>
#include <unordered_map>
#include <vector>

namespace StringTables {
struct PluralFormat;
}

namespace SourceBundle {

// How far a translation is, as string catalogs say it; texts of other files are translated.
enum class State : std::uint8_t { translated, isNew, needsReview };

// A key's text in one language.
struct SourceEntry {
    std::string_view key;
    std::string_view text; // of a plural text, what its forms for `other` make of it
    const StringTables::PluralFormat* plural = nullptr;
    std::string_view comment{}; // for translators
    const TableFile* file = nullptr;
    std::uint32_t line = 0; // of the key, counted from 1; 0 in a binary table
    std::uint32_t column = 0;
    State state = State::translated;
    bool isStale = false;       // the application's code no longer has the key, says the string catalog
    bool isTranslatable = true; // false where the string catalog says that the key stays as it is

    // A message about the entry.
    [[nodiscard]] Runtime::Error error(std::string message) const;
};

// The texts of one table in one language.
class LanguageTexts {
public:
    explicit LanguageTexts(std::string name) : language(std::move(name)) {}

    // The key's entry, or null.
    [[nodiscard]] const SourceEntry* find(std::string_view key) const;
    // The same. Looks first behind `last`, one of its entries or null: languages mostly have their keys in one order.
    [[nodiscard]] const SourceEntry* findBehind(const SourceEntry* last, std::string_view key) const;
    // Adds an entry; false if the key is there already.
    bool add(const SourceEntry& entry);
    // Adds the entries of `other` whose keys are not there already; moves them where there are none yet.
    void add(LanguageTexts&& other);
    // Adds an entry or puts it in the place of that of the same key.
    void replace(const SourceEntry& entry);
    void reserve(std::size_t count);

    std::string language;                // "de", "pt-BR", "Base"
    std::vector<const TableFile*> files; // which the texts are from
    bool isDamaged = false;              // a file of the table cannot be read: keys are missing here

    // Every key once, in the order of the files.
    [[nodiscard]] const std::vector<SourceEntry>& entries() const noexcept { return entries_; }

private:
    std::vector<SourceEntry> entries_;
    std::unordered_map<std::string_view, std::uint32_t> numbers_; // of the entries, by key
};

struct SourceTable {
    std::string name;                     // "Localizable"
    std::vector<LanguageTexts> languages; // by name

    // The texts in `language`, or null.
    [[nodiscard]] const LanguageTexts* find(std::string_view language) const;
};

struct SourceOptions {
    // Empty: what Info.plist says (CFBundleDevelopmentRegion), or else a string catalog, or else "en".
    std::string developmentLanguage{};
    // Adds the pseudo-languages (SourceBundle/PseudoText.h) to every table that does not have them, made of its
    // development texts.
    bool addsPseudoLanguages = false;
};

enum class Pseudo : std::uint8_t;

class Source {
public:
    // Reads the folders as one source. What is wrong with them goes to `diagnostics`; after an error the source holds
    // what could be read. Two files that give one table in one language are an error that names both, but for
    // TABLE.strings and TABLE.stringsdict: of a key in both the plural text counts.
    [[nodiscard]] static Source read(std::span<const std::filesystem::path> folders, const SourceOptions& options,
                                     Diagnostics& diagnostics);
    // Reads the tables of a compiled bundle.
    [[nodiscard]] static Source readBundle(const std::filesystem::path& bundle, Diagnostics& diagnostics);
    Source(Source&&) noexcept;
    Source& operator=(Source&&) noexcept;
    ~Source();

    std::string developmentLanguage;
    std::vector<SourceTable> tables;             // by name
    std::vector<std::filesystem::path> catalogs; // *.xcassets
    std::vector<std::filesystem::path> infos;    // Info.plist of the folders that have one

    // The texts of `table` that decide which accessors exist: those of the development language, then those of Base
    // whose keys it does not have, as its users read them. Points into the source. A table without either has none.
    [[nodiscard]] std::vector<const SourceEntry*> developmentEntries(const SourceTable& table) const;
    // Whether the table has development texts, be it none.
    [[nodiscard]] bool isDeveloped(const SourceTable& table) const;

    struct Storage; // internal

private:
    Source();
    static Source read(SourceFiles files, const SourceOptions& options, Diagnostics& diagnostics);
    void addPseudoLanguages();
    SourceEntry pseudoEntry(const SourceEntry& development, Pseudo kind);

    std::unique_ptr<Storage> storage_;
};

// The language that texts have at run time when the user's is not there.
inline constexpr std::string_view baseLanguage = StringTables::bundleLayout::baseName;

} // namespace SourceBundle
