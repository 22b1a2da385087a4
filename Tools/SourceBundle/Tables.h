// SourceBundle/Tables.h
// The tables of a source bundle, the development language's above all: they decide which accessors exist and of which
// kind.
#pragma once

#include "SourceBundle/Diagnostics.h"
#include "StringTables/internal/Table.h"
#include <filesystem>
#include <optional>
#include <string>
#include <vector>

namespace SourceBundle {

struct SourceTable {
    std::string name;           // "Localizable"
    std::filesystem::path path; // as it was reached: SOURCE/Base.lproj/Localizable.strings
    StringTables::Table table;
};

// An error where `path` is, or lies behind, a link to a place outside of `source`: such a thing is not the bundle's,
// and whoever made the link need not be whoever may read what it leads to.
[[nodiscard]] Runtime::Result<void> checkInside(const std::filesystem::path& source, const std::filesystem::path& path);

// The table at `path` in `source`, its notes as warnings; no value after an error, with file and place, among the
// diagnostics. A path that leads out is one.
[[nodiscard]] std::optional<StringTables::Table> readTable(const std::filesystem::path& source,
                                                           const std::filesystem::path& path, Diagnostics& diagnostics);

// The paths of the tables, *.strings, directly in the language folder `folder` of `source`, sorted by name. What else
// is there is a warning each, but for hidden files; a folder that cannot be read or leads out is an error.
[[nodiscard]] std::vector<std::filesystem::path>
tablesIn(const std::filesystem::path& source, const std::filesystem::path& folder, Diagnostics& diagnostics);

// The tables of the development region's folder (Info.plist's CFBundleDevelopmentRegion, "en" without one) and of
// Base.lproj, sorted by name. Where both have a table, the region's comes directly before that of Base, and the two are
// one: a key of both has the region's text, as for that language's users at run time. A table that cannot be read is an error among the
// diagnostics, with its file and place, and is left out.
[[nodiscard]] std::vector<SourceTable> developmentTables(const std::filesystem::path& source, Diagnostics& diagnostics);

} // namespace SourceBundle
