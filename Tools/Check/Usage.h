// Check/Usage.h
// unused-accessor: accessors whose names no source uses.
#pragma once

#include "Check/Report.h"
#include "Generator/Generator.h"
#include <filesystem>
#include <span>
#include <string_view>

namespace Check {

// Looks for the accessors' names among the identifiers of the C and C++ files in `trees`, in one pass; comments and
// literals do not count, and neither do files that `lumora generate` made. Where several groups have an accessor of one
// name, `Cart::title` uses that of Cart only. A tree that cannot be read is an error. `language` is that of the
// development texts.
void checkUsage(const Generator::Model& model, std::string_view language, std::span<const std::filesystem::path> trees,
                Report& report, SourceBundle::Diagnostics& diagnostics);

} // namespace Check
