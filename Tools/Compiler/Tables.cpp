#include "Compiler/Tables.h"

#include "Compiler/TableCache.h"
#include "Runtime/internal/File.h"
#include "SourceBundle/Parallel.h"
#include "StringTables/internal/BundleLayout.h"
#include "StringTables/internal/PluralTable.h"
#include "StringTables/internal/Table.h"
#include "StringTables/internal/Writer.h"
#include <mutex>
#include <optional>
#include <span>
#include <utility>
#include <vector>

namespace Compiler {

namespace fs = std::filesystem;
using SourceBundle::LanguageTexts;
using SourceBundle::Severity;
using SourceBundle::Source;
using SourceBundle::SourceTable;
using StringTables::Entry;
using StringTables::Table;

namespace {

namespace layout = StringTables::bundleLayout;
constexpr std::string_view regionKey = layout::developmentRegionKey;

// The value of bundleLayout::languagesKey: the languages of the bundle.
std::string languagesOf(const Source& source) {
    std::string list;
    for (const std::string& name : source.languages())
        list.append(name) += layout::languageSeparator;
    return list;
}

// Info.plist with these entries and those about the source. It is written with an index, so that a program need
// not read all of it before its first text.
Runtime::Result<std::string> completed(std::vector<Entry> entries, const Source& source) {
    const std::string languages = languagesOf(source);
    const Entry own[] = {{regionKey, source.developmentLanguage}, {layout::languagesKey, languages}};
    for (const Entry& one : own) {
        std::erase_if(entries, [&one](const Entry& entry) { return entry.key == one.key; });
        entries.push_back(one);
    }
    return StringTables::writeCompiled(entries);
}

// The source's first Info.plist with the entries about the source. If it also has what a table cannot have, such as
// values that are not texts, it is copied unchanged; but if it names no development language or another one, it is
// written anew, and such values are lost and reported.
Runtime::Result<std::string> info(const Source& source, SourceBundle::Diagnostics& diagnostics) {
    if (source.infos.empty())
        return completed({}, source);
    for (const fs::path& other : std::span(source.infos).subspan(1))
        diagnostics.add(Severity::note,
                        {.message = "is left out; the bundle has " + source.infos.front().string(), .file = other});
    const fs::path& file = source.infos.front();
    auto bytes = Runtime::readFile(file, Table::maxBytes);
    if (!bytes)
        return bytes;
    auto table = Table::read(*bytes);
    if (!table) {
        table.error().file = file;
        return std::move(table.error());
    }
    if (table->find(regionKey) == source.developmentLanguage && !table->notes().empty())
        return bytes;
    for (Runtime::Error note : table->notes()) {
        note.file = file;
        diagnostics.add(Severity::note, std::move(note));
    }
    return completed({table->entries().begin(), table->entries().end()}, source);
}

// Writes `bytes` to `file`. If `bytes` is an error, returns it; if it names no file, with the name of that file.
Runtime::Result<void> writeFile(const StagedFolder& out, const fs::path& file, Runtime::Result<std::string> bytes) {
    if (bytes)
        return out.write(file, *bytes);
    if (bytes.error().file.empty())
        bytes.error().file = out.target() / file;
    return std::move(bytes.error());
}

// Writes a table of plain texts. Returns its line for the mark file.
Runtime::Result<std::string> writeTexts(std::span<const Entry> entries, const StagedFolder& out, const fs::path& file,
                                        const TableCache& last) {
    const std::string key = TableCache::keyOf(entries);
    if (const std::optional<std::string> record = last.find(key, out.target() / file); record && out.keep(file))
        return *record;
    auto table = StringTables::writeCompiled(entries);
    std::string record = table ? TableCache::record(key, *table) : "";
    if (auto written = writeFile(out, file, std::move(table)); !written)
        return std::move(written.error());
    return record;
}

// Writes the files of a table in one language. Returns the line for the mark file, or nothing if the table has only
// plurals. A table without any texts has an empty TABLE.strings.
Runtime::Result<std::string> compileTexts(const LanguageTexts& texts, const StagedFolder& out, const fs::path& folder,
                                          std::string_view table, const TableCache& last) {
    std::vector<Entry> entries;
    std::vector<StringTables::PluralEntry> plurals;
    for (const SourceBundle::SourceEntry& entry : texts.entries())
        if (entry.plural == nullptr)
            entries.push_back({entry.key, entry.text});
        else
            plurals.push_back({std::string(entry.key), *entry.plural, {}});
    if (!plurals.empty())
        if (auto written = writeFile(out, folder / layout::pluralsFile(table), StringTables::write(plurals)); !written)
            return std::move(written.error());
    if (entries.empty() && !plurals.empty())
        return std::string();
    return writeTexts(entries, out, folder / layout::textsFile(table), last);
}

} // namespace

Runtime::Result<std::string> compileTables(const Source& source, const StagedFolder& out, std::string_view lastMark,
                                           SourceBundle::Diagnostics& diagnostics, const Progress& progress) {
    if (auto written = writeFile(out, layout::informationFile, info(source, diagnostics)); !written)
        return std::move(written.error());
    struct Job {
        std::string_view table;
        const LanguageTexts& texts;
        fs::path folder;
    };
    std::vector<Job> jobs;
    for (const SourceTable& table : source.tables)
        for (const LanguageTexts& texts : table.languages)
            jobs.push_back({table.name, texts, layout::folderOfLanguage(texts.language)});
    const TableCache last(lastMark);
    std::vector<Runtime::Result<std::string>> records(jobs.size(), std::string());
    std::mutex lock;
    std::size_t begun = 0;
    SourceBundle::inParallel(jobs.size(), [&](std::size_t i) {
        const Job& job = jobs[i];
        {
            const std::lock_guard guard(lock);
            progress((job.folder / layout::textsFile(job.table)).native(), begun++, jobs.size());
        }
        records[i] = compileTexts(job.texts, out, job.folder, job.table, last);
    });
    std::string all;
    for (Runtime::Result<std::string>& record : records) {
        if (!record)
            return std::move(record.error());
        all += *record;
    }
    return all;
}

} // namespace Compiler
