// Check/Usage.h
// unused-accessor: finds accessors that no code uses.
#pragma once

#include "Check/Report.h"
#include "Generator/Generator.h"
#include <filesystem>
#include <span>
#include <string_view>

namespace Check {

// Searches the identifiers of the C and C++ files in these folders and their subfolders for the accessors' names.
// Comments, literals, hidden files and folders, and files written by `lumora generate` are ignored. If several
// namespaces have an accessor with the same name, `Cart::title` uses only that of Cart. An unreadable folder is an
// error, an unreadable file a warning. `language`: the development language, which findings in string catalogs name.
void checkUsage(const Generator::Model& model, std::string_view language,
                std::span<const std::filesystem::path> folders, Report& report, SourceBundle::Diagnostics& diagnostics);

} // namespace Check
