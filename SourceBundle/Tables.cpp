#include "SourceBundle/Tables.h"

#include "Runtime/File.h"
#include <algorithm>
#include <optional>
#include <system_error>
#include <utility>

namespace SourceBundle {

namespace fs = std::filesystem;
using StringTables::Table;

namespace {

void addSystemError(Diagnostics& diagnostics, const fs::path& path, const std::error_code& reason) {
    diagnostics.add(Severity::error, {.message = "cannot be read: " + reason.message(), .file = path});
}

std::string developmentRegion(const fs::path& source, Diagnostics& diagnostics) {
    const fs::path path = source / "Info.plist";
    if (std::error_code failed; fs::exists(path, failed))
        if (const auto info = readTable(path, diagnostics))
            if (const auto region = info->find("CFBundleDevelopmentRegion"))
                return std::string(*region);
    return "en";
}

// The folder of the development texts, if there is one.
std::optional<fs::path> developmentFolder(const fs::path& source, Diagnostics& diagnostics) {
    std::error_code failed;
    const fs::path base = source / "Base.lproj";
    if (fs::is_directory(base, failed))
        return base;
    const std::string region = developmentRegion(source, diagnostics) + ".lproj";
    if (fs::is_directory(source / region, failed))
        return source / region;
    diagnostics.add(
        Severity::warning,
        {.message = "has no development texts: neither Base.lproj nor " + region + " is there", .file = source});
    return std::nullopt;
}

std::vector<fs::path> tablesIn(const fs::path& folder, Diagnostics& diagnostics) {
    std::vector<fs::path> tables;
    std::error_code failed;
    for (fs::directory_iterator file(folder, failed), end; !failed && file != end; file.increment(failed)) {
        const fs::path& path = file->path();
        if (path.filename().native().starts_with('.'))
            continue;
        if (path.extension() == ".strings")
            tables.push_back(path);
        else if (path.extension() == ".stringsdict")
            diagnostics.add(Severity::note,
                            {.message = "is skipped: plural rules are no table of texts", .file = path});
    }
    if (failed)
        addSystemError(diagnostics, folder, failed);
    std::ranges::sort(tables, {}, [](const fs::path& path) { return path.stem(); });
    return tables;
}

} // namespace

std::optional<Table> readTable(const fs::path& path, Diagnostics& diagnostics) {
    auto table = Table::readFile(path);
    if (!table) {
        diagnostics.add(Severity::error, std::move(table.error()));
        return std::nullopt;
    }
    for (const Runtime::Error& note : table->notes())
        diagnostics.add(Severity::warning, note);
    return *std::move(table);
}

std::vector<SourceTable> developmentTables(const fs::path& source, Diagnostics& diagnostics) {
    std::vector<SourceTable> tables;
    const std::optional<fs::path> folder = developmentFolder(source, diagnostics);
    if (!folder)
        return tables;
    for (const fs::path& path : tablesIn(*folder, diagnostics))
        if (auto table = readTable(path, diagnostics))
            tables.push_back({path.stem().string(), path, *std::move(table)});
    return tables;
}

} // namespace SourceBundle
