// SourceBundle/DevelopmentLanguage.h
// The language in which a source's texts are first written, as Info.plist names it; internal.
#pragma once

#include "SourceBundle/Diagnostics.h"
#include <filesystem>
#include <optional>
#include <span>
#include <string>

namespace SourceBundle {

// CFBundleDevelopmentRegion of the first of `infos` that has it. A file that cannot be read is an error; a value that
// is a build setting, "$(DEVELOPMENT_LANGUAGE)", is a warning and no value.
[[nodiscard]] std::optional<std::string> developmentLanguage(std::span<const std::filesystem::path> infos,
                                                             Diagnostics& diagnostics);

} // namespace SourceBundle
