#include "SourceBundle/Source.h"

#include "Runtime/internal/NameMap.h"
#include "SourceBundle/DevelopmentLanguage.h"
#include "SourceBundle/Parallel.h"
#include "SourceBundle/PluralText.h"
#include "SourceBundle/PseudoText.h"
#include "SourceBundle/StringCatalog.h"
#include "StringTables/internal/PluralTable.h"
#include "StringTables/internal/Table.h"
#include <algorithm>
#include <cstring>
#include <deque>
#include <iterator>
#include <map>
#include <memory_resource>
#include <span>
#include <utility>

namespace SourceBundle {

namespace fs = std::filesystem;
using StringTables::Table;

struct Source::Storage {
    std::vector<TableFile> files;
    // Deques do not move their elements, to which entries refer.
    std::deque<Table> tables;
    std::deque<std::vector<std::string>> comments; // of the tables' entries
    std::deque<StringTables::PluralTable> pluralTables;
    std::deque<StringTables::PluralFormat> plurals;
    std::pmr::monotonic_buffer_resource characters;

    // A copy of the text that lives as long as this object.
    std::string_view keep(std::string_view text) {
        if (text.empty())
            return {};
        auto* const memory = static_cast<char*>(characters.allocate(text.size(), 1));
        std::memcpy(memory, text.data(), text.size());
        return {memory, text.size()};
    }
};

namespace {

using Languages = std::map<std::string, LanguageTexts>; // the texts of one table, by language

// Whether files of these kinds may be one table in one language: TABLE.strings and TABLE.stringsdict.
bool areOneTable(TableFile::Kind one, TableFile::Kind other) {
    return one != other && one != TableFile::Kind::catalog && other != TableFile::Kind::catalog;
}

// A file TABLE.strings, read independently of the other files.
struct TextsFile {
    Runtime::Result<Table> table;
    std::vector<std::string> comments; // of the entries
    LanguageTexts texts;               // points into both
};

std::unique_ptr<TextsFile> readTextsFile(const TableFile& file) {
    auto read = std::make_unique<TextsFile>(TextsFile{Table::readFile(file.path), {}, LanguageTexts(file.language)});
    if (!read->table)
        return read;
    const Table& table = *read->table;
    const std::vector<StringTables::Location> places = table.locations();
    read->comments = table.comments();
    read->texts.reserve(places.size());
    for (std::size_t i = 0; i < places.size(); ++i)
        read->texts.add({.key = table.entries()[i].key,
                         .text = table.entries()[i].text,
                         .comment = read->comments[i],
                         .file = &file,
                         .line = static_cast<std::uint32_t>(places[i].line),
                         .column = static_cast<std::uint32_t>(places[i].column)});
    return read;
}

class Reader {
public:
    Reader(Source::Storage& storage, Diagnostics& diagnostics) : storage_(storage), diagnostics_(diagnostics) {}

    // Reads all files. TABLE.strings files, which are most of the work, are first parsed on all processors.
    void readAll() {
        const std::vector<TableFile>& files = storage_.files;
        std::vector<std::unique_ptr<TextsFile>> texts(files.size());
        inParallel(files.size(), [&](std::size_t i) {
            if (files[i].kind == TableFile::Kind::texts)
                texts[i] = readTextsFile(files[i]);
        });
        // Plural tables are last, because they replace texts of other files and take over their comments.
        for (const bool arePlurals : {false, true})
            for (std::size_t i = 0; i < files.size(); ++i)
                if ((files[i].kind == TableFile::Kind::plurals) == arePlurals)
                    read(files[i], texts[i].get());
    }

    // The source language of the first string catalog, or an empty string.
    const std::string& catalogLanguage() const noexcept { return catalogLanguage_; }

    std::vector<SourceTable> take() {
        std::vector<SourceTable> all;
        for (auto& [name, languages] : tables_) {
            SourceTable& table = all.emplace_back(SourceTable{name, {}});
            for (auto& [language, texts] : languages)
                table.languages.push_back(std::move(texts));
        }
        return all;
    }

private:
    // `texts` is the result of readTextsFile(), or null for a file of another kind.
    void read(const TableFile& file, TextsFile* texts) {
        switch (file.kind) {
        case TableFile::Kind::texts:
            return addTexts(file, *texts);
        case TableFile::Kind::plurals:
            return readPlurals(file);
        case TableFile::Kind::catalog:
            return readCatalog(file);
        }
    }

    // Where to add the texts of `file` in `language`; null after an error.
    LanguageTexts* textsFor(const TableFile& file, const std::string& language) {
        LanguageTexts& texts = tables_[file.table].try_emplace(language, language).first->second;
        for (const TableFile* other : texts.files)
            if (!areOneTable(other->kind, file.kind)) {
                diagnostics_.add(Severity::error,
                                 {.message = "is the table \"" + file.table + "\" in the language " + language +
                                             ", as is " + other->path.string(),
                                  .file = file.path},
                                 Topic::unreadableTable);
                texts.isDamaged = true;
                return nullptr;
            }
        texts.files.push_back(&file);
        return &texts;
    }

    void addTexts(const TableFile& file, TextsFile& read) {
        LanguageTexts* texts = textsFor(file, file.language);
        if (texts == nullptr)
            return;
        if (!read.table) {
            texts->isDamaged = true;
            return diagnostics_.add(Severity::error, std::move(read.table.error()), Topic::unreadableTable);
        }
        addNotes(read.table->notes());
        // Moving a table or a vector keeps what the entries point to.
        storage_.tables.push_back(*std::move(read.table));
        storage_.comments.push_back(std::move(read.comments));
        texts->add(std::move(read.texts));
    }

    void readPlurals(const TableFile& file) {
        LanguageTexts* texts = textsFor(file, file.language);
        if (texts == nullptr)
            return;
        auto read = StringTables::PluralTable::readFile(file.path, {}, StringTables::PluralTable::Comments::areRead);
        if (!read) {
            texts->isDamaged = true;
            return diagnostics_.add(Severity::error, std::move(read.error()), Topic::unreadableTable);
        }
        const auto& table = storage_.pluralTables.emplace_back(*std::move(read));
        addNotes(table.notes());
        for (const StringTables::PluralEntry& entry : table.entries()) {
            const SourceEntry* text = texts->find(entry.key);
            texts->replace(
                {.key = entry.key,
                 .text = storage_.keep(otherText(entry.plural)),
                 .plural = &entry.plural,
                 .comment = entry.comment.empty() && text != nullptr ? text->comment : std::string_view(entry.comment),
                 .file = &file,
                 .line = static_cast<std::uint32_t>(entry.location.line),
                 .column = static_cast<std::uint32_t>(entry.location.column)});
        }
    }

    void readCatalog(const TableFile& file) {
        Runtime::NameMap<LanguageTexts*> languages;
        const auto textsIn = [&](std::string_view language) {
            const auto [known, isNew] = languages.try_emplace(std::string(language), nullptr);
            if (isNew)
                known->second = textsFor(file, known->first);
            return known->second;
        };
        const auto add = [&](CatalogText&& text) {
            if (LanguageTexts* texts = textsIn(text.language))
                addCatalogText(*texts, std::move(text), file);
        };
        auto language = readStringCatalog(file.path, add, diagnostics_);
        if (!language) {
            for (const auto& [code, texts] : languages)
                if (texts != nullptr)
                    texts->isDamaged = true;
            return diagnostics_.add(Severity::error, std::move(language.error()), Topic::unreadableTable);
        }
        (void)textsIn(*language); // the table exists even without texts
        if (catalogLanguage_.empty())
            catalogLanguage_ = *std::move(language);
    }

    void addCatalogText(LanguageTexts& texts, CatalogText&& text, const TableFile& file) {
        SourceEntry entry{.key = storage_.keep(text.key),
                          .text = storage_.keep(text.text),
                          .comment = storage_.keep(text.comment),
                          .file = &file,
                          .line = text.line,
                          .column = text.column,
                          .state = text.state,
                          .isStale = text.isStale,
                          .isTranslatable = text.isTranslatable};
        if (text.plural)
            entry.plural = &storage_.plurals.emplace_back(*std::move(text.plural));
        if (texts.find(entry.key) != nullptr)
            diagnostics_.add(Severity::warning, entry.error("the key appears again; this text is used"),
                             Topic::duplicateKey, entry.key);
        texts.replace(entry);
    }

    void addNotes(std::span<const StringTables::TableNote> notes) {
        for (const StringTables::TableNote& note : notes)
            diagnostics_.add(Severity::warning, note, note.repeatedKey ? Topic::duplicateKey : Topic::other,
                             note.repeatedKey.value_or(""));
    }

    Source::Storage& storage_;
    std::string catalogLanguage_;
    Diagnostics& diagnostics_;
    std::map<std::string, Languages> tables_; // by name
};

} // namespace

Runtime::Error SourceEntry::error(std::string message) const {
    return {.message = std::move(message), .file = file->path, .line = line, .column = column};
}

const SourceEntry* LanguageTexts::find(std::string_view key) const {
    const std::size_t number = index_.find(key, entries_);
    return number == index_.none ? nullptr : &entries_[number];
}

const SourceEntry* LanguageTexts::findAfter(const SourceEntry* last, std::string_view key) const {
    const std::size_t next = last == nullptr ? 0 : static_cast<std::size_t>(last - entries_.data()) + 1;
    return next < entries_.size() && entries_[next].key == key ? &entries_[next] : find(key);
}

bool LanguageTexts::add(const SourceEntry& entry) {
    entries_.push_back(entry);
    const bool isNew = index_.addLast(entries_) == index_.none;
    if (!isNew)
        entries_.pop_back();
    return isNew;
}

void LanguageTexts::add(LanguageTexts&& other) {
    if (entries_.empty()) {
        entries_ = std::move(other.entries_);
        index_ = std::move(other.index_);
        return;
    }
    for (const SourceEntry& entry : other.entries_)
        add(entry);
}

void LanguageTexts::replace(const SourceEntry& entry) {
    if (!add(entry))
        entries_[index_.find(entry.key, entries_)] = entry;
}

const LanguageTexts* SourceTable::find(std::string_view language) const {
    const auto found = std::ranges::find(languages, language, &LanguageTexts::language);
    return found == languages.end() ? nullptr : &*found;
}

Source::Source() : storage_(std::make_unique<Storage>()) {}
Source::Source(Source&&) noexcept = default;
Source& Source::operator=(Source&&) noexcept = default;
Source::~Source() = default;

std::set<std::string> Source::languages() const {
    std::set<std::string> all;
    for (const SourceTable& table : tables)
        for (const LanguageTexts& texts : table.languages)
            all.insert(texts.language);
    return all;
}

bool Source::hasDevelopmentLanguage(const SourceTable& table) const {
    return table.find(developmentLanguage) != nullptr || table.find(baseLanguage) != nullptr;
}

std::vector<const SourceEntry*> Source::developmentEntries(const SourceTable& table) const {
    std::vector<const SourceEntry*> entries;
    const LanguageTexts* own = table.find(developmentLanguage);
    const LanguageTexts* base = table.find(baseLanguage);
    for (const LanguageTexts* texts : {own, base})
        if (texts != nullptr)
            for (const SourceEntry& entry : texts->entries())
                if (texts == own || own == nullptr || own->find(entry.key) == nullptr)
                    entries.push_back(&entry);
    return entries;
}

// Keys that must not be translated keep their text.
SourceEntry Source::pseudoEntry(const SourceEntry& development, Pseudo kind) {
    SourceEntry entry = development;
    if (!entry.isTranslatable)
        return entry;
    if (entry.plural != nullptr)
        entry.plural = &storage_->plurals.emplace_back(pseudoPlural(*entry.plural, kind));
    entry.text = storage_->keep(entry.plural == nullptr ? pseudoText(entry.text, kind) : otherText(*entry.plural));
    return entry;
}

void Source::addPseudoLanguages() {
    for (SourceTable& table : tables) {
        const std::vector<const SourceEntry*> development = developmentEntries(table);
        std::vector<LanguageTexts> added;
        for (const auto& [code, kind] : pseudoLanguages) {
            if (table.find(code) != nullptr)
                continue;
            LanguageTexts& texts = added.emplace_back(std::string(code));
            texts.reserve(development.size());
            for (const SourceEntry* entry : development)
                texts.add(pseudoEntry(*entry, kind));
        }
        std::ranges::move(added, std::back_inserter(table.languages));
        std::ranges::sort(table.languages, {}, &LanguageTexts::language);
    }
}

Source Source::read(std::span<const fs::path> folders, const SourceOptions& options, Diagnostics& diagnostics) {
    Source source = read(findFiles(folders, diagnostics), options, diagnostics);
    if (!source.tables.empty() && std::ranges::none_of(source.tables, [&](const SourceTable& table) {
            return source.hasDevelopmentLanguage(table);
        }))
        diagnostics.add(Severity::warning, {.message = "has no development texts: neither in the language " +
                                                       source.developmentLanguage + " nor in Base.lproj",
                                            .file = folders.front()});
    return source;
}

Source Source::readBundle(const fs::path& bundle, Diagnostics& diagnostics) {
    return read(findBundleFiles(bundle, diagnostics), {}, diagnostics);
}

Source Source::read(SourceFiles files, const SourceOptions& options, Diagnostics& diagnostics) {
    Source source;
    source.catalogs = std::move(files.catalogs);
    source.infos = std::move(files.infos);
    source.storage_->files = std::move(files.tables);

    Reader reader(*source.storage_, diagnostics);
    reader.readAll();
    source.tables = reader.take();
    const std::string otherwise = reader.catalogLanguage().empty() ? "en" : reader.catalogLanguage();
    source.developmentLanguage = options.developmentLanguage.empty()
                                     ? SourceBundle::developmentLanguage(source.infos, diagnostics).value_or(otherwise)
                                     : languageNamed(options.developmentLanguage);
    source.developmentLanguage = languageAmong(source.languages(), source.developmentLanguage);
    if (options.addsPseudoLanguages)
        source.addPseudoLanguages();
    return source;
}

} // namespace SourceBundle
