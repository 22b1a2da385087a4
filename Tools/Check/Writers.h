// Check/Writers.h
// Findings as people and programs read them.
// Text: UTF-8; what cannot be seen in names is escaped. Threads: any; no state. The same findings give the same bytes.
#pragma once

#include "Check/Finding.h"
#include <span>
#include <string>

namespace Check {

// A paragraph for each rule, in the order of the rules, with a line for each finding, "FILE:LINE:COLUMN: error:
// MESSAGE"; the last line counts. Findings below `lowest` are counted only.
[[nodiscard]] std::string asText(std::span<const Finding> findings, Severity lowest, bool isColoured);

// An array of objects with rule, severity, file, line, column, language, key and message.
[[nodiscard]] std::string asJson(std::span<const Finding> findings, Severity lowest);

// SARIF 2.1.0. Files in `folder` are named relative to it, as viewers in a repository expect; each finding has a
// fingerprint that stays when lines move. `version` is the program's.
[[nodiscard]] std::string asSarif(std::span<const Finding> findings, Severity lowest,
                                  const std::filesystem::path& folder, const std::string& version);

} // namespace Check
