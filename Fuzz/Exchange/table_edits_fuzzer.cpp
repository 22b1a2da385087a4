// Takes any bytes for a table, a plural table or a string catalog, as the first byte says, and sets texts in it. The
// result can be read again and has the new text; a table and a plural table have the same other entries as before.
#include "Exchange/CatalogDocument.h"
#include "Exchange/TableDocument.h"
#include "StringTables/internal/PluralTable.h"
#include "StringTables/internal/Table.h"
#include "StringTables/internal/Unicode.h"

#include "../../Tests/Support/TemporaryFolder.h"
#include "../Require.h"
#include <algorithm>
#include <cstdint>

namespace {

using Exchange::Change;
using Exchange::Unit;
using SourceBundle::SourceEntry;
using SourceBundle::TableFile;
using StringTables::PluralTable;
using StringTables::Table;

const std::string newText = "n\xC3\xA9w \"<&>\\ \n";

// The file's bytes with the target of `unit`; empty if the file or the change is rejected.
std::string edited(const TableFile& file, const Unit& unit, const SourceEntry& development) {
    auto document = Exchange::TableDocument::read(file);
    if (!document)
        return {};
    const auto before = (*document)->bytes();
    const Change change{.development = &development, .language = "de", .changed = {&unit}, .all = {&unit}};
    if (!(*document)->apply(change))
        return {};
    auto after = (*document)->bytes();
    require(before && after);
    return *std::move(after);
}

// One of the entries; the size of the input decides which.
const auto& anEntry(const auto& table, const std::string& bytes) {
    return table.entries()[bytes.size() % table.entries().size()];
}

void editTexts(const TableFile& file, const std::string& bytes) {
    const auto table = Table::read(bytes);
    if (!table)
        return;
    std::vector<std::string> keys = {"a new key"};
    if (!table->entries().empty())
        keys.emplace_back(anEntry(*table, bytes).key);
    // The comment has the ends of comments in the text form and in XML.
    const SourceEntry development{.key = "k", .text = "t", .comment = "says what it is */ --"};
    for (const std::string& key : keys) {
        const std::string made =
            edited(file, {.id = {"T", key, {}, {}}, .source = "s", .target = newText}, development);
        if (made.empty())
            continue;
        const auto again = Table::read(made);
        require(again && again->form() == table->form() && again->find(key) == newText);
        for (const StringTables::Entry& entry : table->entries())
            require(entry.key == key || again->find(entry.key) == entry.text);
    }
}

void editPlurals(const TableFile& file, const std::string& bytes) {
    const auto table = PluralTable::read(bytes);
    if (!table)
        return;
    const SourceEntry development{.key = "k", .text = "t", .comment = "-- c -"};
    Unit unit{
        .id = {"T", "a new key", {"variables", "n"}, Intl::PluralCategory::few}, .source = "s", .target = newText};
    if (!table->entries().empty()) {
        const auto& entry = anEntry(*table, bytes);
        unit.id.key = entry.key;
        if (!entry.plural.variables.empty())
            unit.id.part.back() = entry.plural.variables.front().name;
    }
    const std::string made = edited(file, unit, development);
    if (made.empty())
        return;
    const auto again = PluralTable::read(made);
    require(again && again->find(unit.id.key) != nullptr);
    const auto hasNewForm = [&unit](const StringTables::PluralVariable& variable) {
        return variable.name == unit.id.part.back() && variable.forms[indexOf(*unit.id.category)] == newText;
    };
    require(std::ranges::any_of(again->find(unit.id.key)->plural.variables, hasNewForm));
    for (const auto& entry : table->entries())
        if (entry.key != unit.id.key)
            require(again->find(entry.key) != nullptr && again->find(entry.key)->plural == entry.plural);
}

void editCatalog(const TableFile& file, const std::string& bytes) {
    auto catalog = Exchange::CatalogDocument::read(bytes);
    if (!catalog)
        return;
    require(catalog->bytes() && *catalog->bytes() == bytes);
    (void)catalog->texts("k", "de");
    const SourceEntry development{.key = "k", .text = "t"};
    const Unit unit{
        .id = {"T", "k", {"substitutions", "n"}, Intl::PluralCategory::few}, .source = "s", .target = newText};
    const std::string made = edited(file, unit, development);
    if (made.empty())
        return;
    auto again = Exchange::CatalogDocument::read(made);
    require(static_cast<bool>(again));
    const auto texts = again->texts("k", "de");
    require(std::ranges::any_of(texts, [](const auto& text) { return text.text == newText; }));
}

} // namespace

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
    static const Support::TemporaryFolder folder;
    if (size == 0)
        return 0;
    const std::string bytes(reinterpret_cast<const char*>(data) + 1, size - 1);
    TableFile file{
        .kind = TableFile::Kind::texts, .table = "T", .language = "de", .path = folder.write("table", bytes)};
    switch (data[0] % 3) {
    case 0:
        editTexts(file, bytes);
        break;
    case 1:
        file.kind = TableFile::Kind::plurals;
        editPlurals(file, bytes);
        break;
    default:
        file.kind = TableFile::Kind::catalog;
        editCatalog(file, bytes);
    }
    return 0;
}
