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

// CFBundleDevelopmentRegion of the first of `infos`, files Info.plist, that has a usable value, "de" for "German"; no
// value if none has one. Unreadable files are skipped with an error, and build settings such as
// "$(DEVELOPMENT_LANGUAGE)" with a warning.
[[nodiscard]] std::optional<std::string> developmentLanguage(std::span<const std::filesystem::path> infos,
                                                             Diagnostics& diagnostics);

// The one of `languages` that `wanted` means: the same tag or, if there is none, the tag that remains when as few
// subtags as possible are removed from its end ("de" for "de_DE"). Case and "_" or "-" make no difference. `wanted` if
// there is no such language.
[[nodiscard]] std::string languageAmong(const std::set<std::string>& languages, const std::string& wanted);

} // namespace SourceBundle
