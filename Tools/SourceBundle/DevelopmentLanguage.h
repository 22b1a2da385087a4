// SourceBundle/DevelopmentLanguage.h
// Reads a source's development language from Info.plist; internal.
#pragma once

#include "SourceBundle/Diagnostics.h"
#include <filesystem>
#include <optional>
#include <set>
#include <span>
#include <string>

namespace SourceBundle {

// CFBundleDevelopmentRegion of the first of `infos` that contains it. An unreadable file is an error. A value that is a
// build setting, such as "$(DEVELOPMENT_LANGUAGE)", is ignored with a warning.
[[nodiscard]] std::optional<std::string> developmentLanguage(std::span<const std::filesystem::path> infos,
                                                             Diagnostics& diagnostics);

// Which of `languages` is meant by `wanted`: itself, or else the nearest one with fewer subtags, without regard to case
// and to "_" or "-" ("de_DE" may mean "de"). `wanted` where there is none.
[[nodiscard]] std::string languageAmong(const std::set<std::string>& languages, const std::string& wanted);

} // namespace SourceBundle
