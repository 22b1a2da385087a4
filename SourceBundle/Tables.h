// SourceBundle/Tables.h
// The tables of a source bundle, the development language's above all: they decide which accessors exist and of which
// kind.
#pragma once

#include "SourceBundle/Diagnostics.h"
#include "StringTables/Table.h"
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

// The table at `path`, its notes as warnings; no value after an error, with file and place, among the diagnostics.
[[nodiscard]] std::optional<StringTables::Table> readTable(const std::filesystem::path& path, Diagnostics& diagnostics);

// The tables of Base.lproj, or where there is none of the development region's folder (Info.plist's
// CFBundleDevelopmentRegion, "en" without one), sorted by name. A table that cannot be read is an error among the
// diagnostics, with its file and place, and is left out.
[[nodiscard]] std::vector<SourceTable> developmentTables(const std::filesystem::path& source, Diagnostics& diagnostics);

} // namespace SourceBundle
