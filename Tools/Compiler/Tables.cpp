#include "Compiler/Tables.h"

#include "Runtime/internal/File.h"
#include "SourceBundle/Tables.h"
#include "StringTables/internal/Table.h"
#include "StringTables/internal/Writer.h"
#include <algorithm>
#include <array>
#include <vector>

namespace Compiler {

namespace fs = std::filesystem;
using StringTables::Table;

namespace {

// The tables below the language folders of `source`, as paths relative to it, in a fixed order.
std::vector<fs::path> tablesOf(const fs::path& source, SourceBundle::Diagnostics& diagnostics) {
    std::vector<fs::path> folders, tables;
    std::error_code failed;
    for (fs::directory_iterator folder(source, failed), end; !failed && folder != end; folder.increment(failed)) {
        const fs::path& path = folder->path();
        if (path.extension() != ".lproj")
            continue;
        if (std::error_code unknown; folder->is_regular_file(unknown))
            diagnostics.add(SourceBundle::Severity::warning,
                            {.message = "is skipped: it is no folder of tables", .file = path});
        else
            folders.push_back(path);
    }
    if (failed)
        diagnostics.add(SourceBundle::Severity::error,
                        {.message = "cannot be read: " + failed.message(), .file = source});
    std::ranges::sort(folders);
    for (const fs::path& folder : folders)
        for (const fs::path& table : SourceBundle::tablesIn(source, folder, diagnostics))
            tables.push_back(folder.filename() / table.filename());
    return tables;
}

// The source's own Info.plist, or one that says what is taken for granted without it. In the form that is read fastest,
// as a program reads it before its first text; one that holds more than texts is left as it stands.
Runtime::Result<std::string> information(const fs::path& source) {
    const fs::path file = source / "Info.plist";
    if (auto inside = SourceBundle::checkInside(source, file); !inside)
        return std::move(inside.error());
    if (std::error_code failed; fs::exists(file, failed)) {
        auto bytes = Runtime::readFile(file, Table::maxBytes);
        if (!bytes)
            return bytes;
        const auto table = Table::read(*bytes);
        return table && table->notes().empty() ? StringTables::write(table->entries(), StringTables::Form::binary)
                                               : bytes;
    }
    const std::array<StringTables::Entry, 1> entries = {{{"CFBundleDevelopmentRegion", "en"}}};
    return StringTables::write(entries, StringTables::Form::binary);
}

Runtime::Result<void> place(const fs::path& file, Runtime::Result<std::string> bytes) {
    if (!bytes)
        return std::move(bytes.error());
    std::error_code failed;
    fs::create_directories(file.parent_path(), failed);
    return Runtime::writeFile(file, *bytes);
}

} // namespace

Runtime::Result<void> compileTables(const fs::path& source, const fs::path& out, SourceBundle::Diagnostics& diagnostics,
                                    const Progress& progress) {
    if (auto written = place(out / "Info.plist", information(source)); !written)
        return written;
    const std::vector<fs::path> tables = tablesOf(source, diagnostics);
    std::size_t done = 0;
    for (const fs::path& table : tables) {
        progress(table.string(), done++, tables.size());
        const auto read = SourceBundle::readTable(source, source / table, diagnostics);
        if (!read)
            continue;
        auto binary = StringTables::write(read->entries(), StringTables::Form::binary);
        if (auto written = place(out / table, std::move(binary)); !written)
            return written;
    }
    return {};
}

} // namespace Compiler
