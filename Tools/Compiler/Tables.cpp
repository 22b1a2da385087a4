#include "Compiler/Tables.h"

#include "Runtime/internal/File.h"
#include "StringTables/internal/BundleLayout.h"
#include "StringTables/internal/PluralTable.h"
#include "StringTables/internal/Table.h"
#include "StringTables/internal/Writer.h"
#include <vector>

namespace Compiler {

namespace fs = std::filesystem;
using SourceBundle::LanguageTexts;
using SourceBundle::Source;
using SourceBundle::SourceTable;
using StringTables::Entry;
using StringTables::Form;
using StringTables::Table;

namespace {

namespace layout = StringTables::bundleLayout;
constexpr std::string_view regionKey = layout::developmentRegionKey;

// The language folders of the bundle, in the form of bundleLayout::languagesKey.
std::string languagesOf(const Source& source) {
    std::string list;
    for (const std::string& name : source.languages())
        list.append(name) += layout::languageSeparator;
    return list;
}

bool hasPlurals(const Source& source) {
    for (const SourceTable& table : source.tables)
        for (const LanguageTexts& texts : table.languages)
            for (const SourceBundle::SourceEntry& entry : texts.entries())
                if (entry.plural != nullptr)
                    return true;
    return false;
}

// Adds the entries about the source. Binary, because a program reads Info.plist before its first text.
Runtime::Result<std::string> completed(std::vector<Entry> entries, const Source& source) {
    const std::string languages = languagesOf(source);
    const Entry own[] = {{regionKey, source.developmentLanguage},
                         {layout::languagesKey, languages},
                         {layout::pluralsKey, hasPlurals(source) ? "yes" : "no"}};
    for (const Entry& one : own) {
        std::erase_if(entries, [&one](const Entry& entry) { return entry.key == one.key; });
        entries.push_back(one);
    }
    return StringTables::write(entries, Form::binary);
}

// The source's Info.plist with additional entries. One that contains other values than strings is copied unchanged,
// unless its development language must be changed.
Runtime::Result<std::string> info(const Source& source) {
    if (source.infos.empty())
        return completed({}, source);
    auto bytes = Runtime::readFile(source.infos.front(), Table::maxBytes);
    if (!bytes)
        return bytes;
    const auto table = Table::read(*bytes);
    if (!table)
        return completed({}, source);
    if (table->find(regionKey) == source.developmentLanguage && !table->notes().empty())
        return bytes;
    return completed({table->entries().begin(), table->entries().end()}, source);
}

Runtime::Result<void> place(const StagedFolder& out, const fs::path& file, Runtime::Result<std::string> bytes) {
    if (bytes)
        return out.write(file, *bytes);
    bytes.error().file = out.target() / file;
    return std::move(bytes.error());
}

// Writes plain texts to TABLE.strings and plurals to TABLE.stringsdict.
Runtime::Result<void> compileTexts(const LanguageTexts& texts, const StagedFolder& out, const fs::path& folder,
                                   std::string_view table) {
    std::vector<Entry> entries;
    std::vector<StringTables::PluralEntry> plurals;
    for (const SourceBundle::SourceEntry& entry : texts.entries())
        if (entry.plural == nullptr)
            entries.push_back({entry.key, entry.text});
        else
            plurals.push_back({std::string(entry.key), *entry.plural, {}});
    if (!plurals.empty())
        if (auto written = place(out, folder / layout::pluralsFile(table), StringTables::write(plurals)); !written)
            return written;
    return entries.empty() && !plurals.empty()
               ? Runtime::Result<void>()
               : place(out, folder / layout::textsFile(table), StringTables::writeCompiled(entries));
}

} // namespace

Runtime::Result<void> compileTables(const Source& source, const StagedFolder& out, const Progress& progress) {
    if (auto written = place(out, layout::informationFile, info(source)); !written)
        return written;
    std::size_t all = 0, done = 0;
    for (const SourceTable& table : source.tables)
        all += table.languages.size();
    for (const SourceTable& table : source.tables)
        for (const LanguageTexts& texts : table.languages) {
            const fs::path folder = layout::folderOfLanguage(texts.language);
            progress((folder / layout::textsFile(table.name)).native(), done++, all);
            if (auto written = compileTexts(texts, out, folder, table.name); !written)
                return written;
        }
    return {};
}

} // namespace Compiler
