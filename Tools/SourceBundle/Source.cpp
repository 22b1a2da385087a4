#include "SourceBundle/Source.h"

#include "SourceBundle/DevelopmentLanguage.h"
#include "StringTables/internal/Table.h"
#include <algorithm>
#include <deque>
#include <map>
#include <utility>

namespace SourceBundle {

namespace fs = std::filesystem;
using StringTables::Table;

struct Source::Storage {
    std::vector<TableFile> files;
    std::deque<Table> tables;
    std::deque<std::vector<std::string>> comments; // of the tables' entries
};

namespace {

using Languages = std::map<std::string, LanguageTexts>;

bool areOneTable(TableFile::Kind one, TableFile::Kind other) {
    return one != other && one != TableFile::Kind::catalog && other != TableFile::Kind::catalog;
}

class Reader {
public:
    Reader(Source::Storage& storage, Diagnostics& diagnostics) : storage_(storage), diagnostics_(diagnostics) {}

    void read(const TableFile& file) {
        switch (file.kind) {
        case TableFile::Kind::texts:
            return readTexts(file);
        case TableFile::Kind::plurals:
        case TableFile::Kind::catalog:
            diagnostics_.add(Severity::warning, {.message = "cannot be read yet", .file = file.path});
        }
    }

    std::vector<SourceTable> take() {
        std::vector<SourceTable> all;
        for (auto& [name, languages] : byName_) {
            SourceTable& table = all.emplace_back(SourceTable{name, {}});
            for (auto& [language, texts] : languages)
                table.languages.push_back(std::move(texts));
        }
        return all;
    }

private:
    // Where the texts of `file` in `language` go, or null after an error.
    LanguageTexts* textsFor(const TableFile& file, const std::string& language) {
        LanguageTexts& texts = byName_[file.table].try_emplace(language, language).first->second;
        for (const TableFile* other : texts.files)
            if (!areOneTable(other->kind, file.kind)) {
                diagnostics_.add(Severity::error, {.message = "is the table \"" + file.table + "\" in the language " +
                                                              language + ", as is " + other->path.string(),
                                                   .file = file.path});
                return nullptr;
            }
        texts.files.push_back(&file);
        return &texts;
    }

    void readTexts(const TableFile& file) {
        LanguageTexts* texts = textsFor(file, file.language);
        if (texts == nullptr)
            return;
        auto read = Table::readFile(file.path);
        if (!read) {
            texts->isDamaged = true;
            return diagnostics_.add(Severity::error, std::move(read.error()));
        }
        const Table& table = storage_.tables.emplace_back(*std::move(read));
        for (const Runtime::Error& note : table.notes())
            diagnostics_.add(Severity::warning, note);
        const std::vector<StringTables::Location> places = table.locations();
        const std::vector<std::string>& comments = storage_.comments.emplace_back(table.comments());
        texts->reserve(places.size());
        for (std::size_t i = 0; i < places.size(); ++i)
            texts->add({.key = table.entries()[i].key,
                        .text = table.entries()[i].text,
                        .comment = comments[i],
                        .file = &file,
                        .line = static_cast<std::uint32_t>(places[i].line),
                        .column = static_cast<std::uint32_t>(places[i].column)});
    }

    Source::Storage& storage_;
    Diagnostics& diagnostics_;
    std::map<std::string, Languages> byName_;
};

} // namespace

Runtime::Error SourceEntry::error(std::string message) const {
    return {.message = std::move(message), .file = file->path, .line = line, .column = column};
}

const SourceEntry* LanguageTexts::find(std::string_view key) const {
    const auto found = numbers_.find(key);
    return found == numbers_.end() ? nullptr : &entries_[found->second];
}

bool LanguageTexts::add(const SourceEntry& entry) {
    const bool isNew = numbers_.try_emplace(entry.key, static_cast<std::uint32_t>(entries_.size())).second;
    if (isNew)
        entries_.push_back(entry);
    return isNew;
}

void LanguageTexts::replace(const SourceEntry& entry) {
    if (!add(entry))
        entries_[numbers_.find(entry.key)->second] = entry;
}

void LanguageTexts::reserve(std::size_t count) {
    entries_.reserve(entries_.size() + count);
    numbers_.reserve(numbers_.size() + count);
}

const LanguageTexts* SourceTable::find(std::string_view language) const {
    const auto found = std::ranges::find(languages, language, &LanguageTexts::language);
    return found == languages.end() ? nullptr : &*found;
}

Source::Source() : storage_(std::make_unique<Storage>()) {}
Source::Source(Source&&) noexcept = default;
Source& Source::operator=(Source&&) noexcept = default;
Source::~Source() = default;

bool Source::isDeveloped(const SourceTable& table) const {
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

Source Source::read(std::span<const fs::path> folders, const SourceOptions& options, Diagnostics& diagnostics) {
    Source source = read(findFiles(folders, diagnostics), options, diagnostics);
    if (!source.tables.empty() &&
        std::ranges::none_of(source.tables, [&](const SourceTable& table) { return source.isDeveloped(table); }))
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
    for (const TableFile& file : source.storage_->files)
        reader.read(file);
    source.tables = reader.take();
    source.developmentLanguage = options.developmentLanguage.empty()
                                     ? SourceBundle::developmentLanguage(source.infos, diagnostics).value_or("en")
                                     : languageOfFolder(options.developmentLanguage);
    return source;
}

} // namespace SourceBundle
