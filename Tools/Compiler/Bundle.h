// Compiler/Bundle.h
// Compiles a source into the bundle that ships: binary tables, one compiled asset catalog, Info.plist.
// Text: UTF-8; paths are raw bytes. Threads: one compile per output at a time.
#pragma once

#include "Runtime/internal/Result.h"
#include "SourceBundle/Diagnostics.h"
#include "SourceBundle/Source.h"
#include <cstddef>
#include <filesystem>
#include <functional>
#include <string_view>

namespace Compiler {

// Called before each step with its name, the number of steps that have begun before it and the number of all steps. The
// tables are counted first, then the assets. Calls come from several threads, but one at a time.
using Progress = std::function<void(std::string_view what, std::size_t done, std::size_t all)>;

// Compiles `source`, which was read from `folders`, into `bundle`. The bundle is built in a staging folder and replaced
// atomically: readers, also after a killed compile, find either the old bundle or the new one. Problems in the source
// are added to `diagnostics`; if there are errors, the bundle is unchanged. The result reports file system errors.
// Replaces only compiled bundles, never other folders or a folder that contains a source.
[[nodiscard]] Runtime::Result<void> compileBundle(const SourceBundle::Source& source,
                                                  std::span<const std::filesystem::path> folders,
                                                  const std::filesystem::path& bundle,
                                                  SourceBundle::Diagnostics& diagnostics, const Progress& progress);

} // namespace Compiler
