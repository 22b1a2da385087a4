// SourceBundle/DevelopmentLanguage.h
// Reads a source's development language from Info.plist.
#pragma once

#include "SourceBundle/Diagnostics.h"
#include <filesystem>
#include <optional>
#include <set>
#include <span>
#include <string>

namespace SourceBundle {

// CFBundleDevelopmentRegion of the first of `infos` that has it, "de" for "German"; no value if none has it. An
// unreadable file is an error. A value that is a build setting, such as "$(DEVELOPMENT_LANGUAGE)", is ignored with a
// warning.
[[nodiscard]] std::optional<std::string> developmentLanguage(std::span<const std::filesystem::path> infos,
                                                             Diagnostics& diagnostics);

// The one of `languages` that `wanted` means: the same tag or, if there is none, the tag that remains when as few
// subtags as possible are removed from its end ("de" for "de_DE"). Case and "_" or "-" make no difference. `wanted` if
// there is no such language.
[[nodiscard]] std::string languageAmong(const std::set<std::string>& languages, const std::string& wanted);

} // namespace SourceBundle
