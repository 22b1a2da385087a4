// Check/Writers.h
// Formats findings for people and programs.
// Text: UTF-8. Threads: any; no state. The same findings give the same bytes.
#pragma once

#include "Check/Finding.h"
#include <filesystem>
#include <span>
#include <string>

namespace Check {

// A paragraph for each rule, with a heading and a line for each finding, "FILE:LINE:COLUMN: error: MESSAGE"; then a
// line with the totals. Findings below `lowest` are only counted. Invisible characters are escaped.
[[nodiscard]] std::string asText(std::span<const Finding> findings, Severity lowest, bool isColored);

// A JSON array of objects with rule, severity, file, line, column, language, key (or the asset's name) and message.
// Findings below `lowest` are left out, here and in SARIF.
[[nodiscard]] std::string asJson(std::span<const Finding> findings, Severity lowest);

// SARIF 2.1.0. `folder`: the absolute path of the working folder; files in it have relative URIs, as repository viewers
// expect. Each finding has a fingerprint that does not change when lines move. `version` is that of the program.
[[nodiscard]] std::string asSarif(std::span<const Finding> findings, Severity lowest,
                                  const std::filesystem::path& folder, const std::string& version);

} // namespace Check
