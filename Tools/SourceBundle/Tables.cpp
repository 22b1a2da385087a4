#include "SourceBundle/Tables.h"

#include "Runtime/internal/File.h"
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
    if (std::error_code failed; !fs::exists(path, failed))
        return "en";
    if (auto inside = checkInside(source, path); !inside) {
        diagnostics.add(Severity::error, std::move(inside.error()));
        return "en";
    }
    const auto info = Table::readFile(path); // of its notes none matters: it holds more than texts
    if (!info)
        diagnostics.add(Severity::error, info.error());
    const auto region = info ? info->find("CFBundleDevelopmentRegion") : std::nullopt;
    return std::string(region.value_or("en"));
}

// The folders of the development texts that are there, in the order in which they answer.
std::vector<fs::path> developmentFolders(const fs::path& source, Diagnostics& diagnostics) {
    std::error_code failed;
    const std::string region = developmentRegion(source, diagnostics) + ".lproj";
    std::vector<fs::path> folders;
    for (const fs::path& folder : {source / region, source / "Base.lproj"})
        if (fs::is_directory(folder, failed) && (folders.empty() || !fs::equivalent(folder, folders[0], failed)))
            folders.push_back(folder);
    if (folders.empty())
        diagnostics.add(
            Severity::warning,
            {.message = "has no development texts: neither Base.lproj nor " + region + " is there", .file = source});
    return folders;
}

} // namespace

Runtime::Result<void> checkInside(const fs::path& source, const fs::path& path) {
    std::error_code failed;
    const fs::path real = fs::canonical(path, failed);
    if (failed)
        return {}; // nothing is there, as whoever reads it will say
    const fs::path inside = real.lexically_relative(fs::canonical(source, failed));
    if (inside.empty() || *inside.begin() == "..")
        return Runtime::Error{.message = "is a link that leads out of the source bundle", .file = path};
    return {};
}

std::optional<Table> readTable(const fs::path& source, const fs::path& path, Diagnostics& diagnostics) {
    if (auto inside = checkInside(source, path); !inside) {
        diagnostics.add(Severity::error, std::move(inside.error()));
        return std::nullopt;
    }
    auto table = Table::readFile(path);
    if (!table) {
        diagnostics.add(Severity::error, std::move(table.error()));
        return std::nullopt;
    }
    for (const Runtime::Error& note : table->notes())
        diagnostics.add(Severity::warning, note);
    return *std::move(table);
}

std::vector<fs::path> tablesIn(const fs::path& source, const fs::path& folder, Diagnostics& diagnostics) {
    std::vector<fs::path> tables, others;
    if (auto inside = checkInside(source, folder); !inside) {
        diagnostics.add(Severity::error, std::move(inside.error()));
        return tables;
    }
    std::error_code failed;
    for (fs::directory_iterator file(folder, failed), end; !failed && file != end; file.increment(failed))
        if (const fs::path& path = file->path(); !path.filename().native().starts_with('.'))
            (path.extension() == ".strings" ? tables : others).push_back(path);
    if (failed)
        addSystemError(diagnostics, folder, failed);
    std::ranges::sort(others);
    for (const fs::path& path : others)
        diagnostics.add(Severity::warning, {.message = path.extension() == ".stringsdict"
                                                           ? "is skipped: plural rules are no table of texts"
                                                           : "is skipped: it is no table of texts (*.strings)",
                                            .file = path});
    std::ranges::sort(tables, {}, [](const fs::path& path) { return path.stem(); });
    return tables;
}

std::vector<SourceTable> developmentTables(const fs::path& source, Diagnostics& diagnostics) {
    std::vector<SourceTable> tables;
    for (const fs::path& folder : developmentFolders(source, diagnostics))
        for (const fs::path& path : tablesIn(source, folder, diagnostics))
            if (auto table = readTable(source, path, diagnostics))
                tables.push_back({path.stem().string(), path, *std::move(table)});
    std::ranges::stable_sort(tables, {}, &SourceTable::name);
    return tables;
}

} // namespace SourceBundle
