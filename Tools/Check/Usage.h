// Check/Usage.h
// unused-accessor: finds accessors that no source uses.
#pragma once

#include "Check/Report.h"
#include "Generator/Generator.h"
#include <filesystem>
#include <span>
#include <string_view>

namespace Check {

// Searches the identifiers of the C and C++ files in `trees` for the accessors' names, in one pass. Comments, literals
// and files written by `lumora generate` are ignored. If several groups have an accessor with the same name,
// `Cart::title` uses only that of Cart. An unreadable tree is an error. `language` is the development language.
void checkUsage(const Generator::Model& model, std::string_view language, std::span<const std::filesystem::path> trees,
                Report& report, SourceBundle::Diagnostics& diagnostics);

} // namespace Check
