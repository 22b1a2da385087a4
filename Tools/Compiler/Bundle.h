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
#include <span>
#include <string_view>

namespace Compiler {

// Called before each table in a language ("de.lproj/Localizable.strings", even if it has only plurals) and before each
// asset ("send") is compiled or kept: its name, how many have begun before it, and how many there are. Assets come
// after all tables and are counted from 0 again. Calls come from several threads, but one at a time. The
// function must not be empty.
using Progress = std::function<void(std::string_view what, std::size_t begun, std::size_t all)>;

// Compiles `source`, which was read from `folders`, into `bundle`. The new bundle is built in another folder and then
// replaces the old one atomically: readers find one of the two, even if the compile is killed. Adds to `diagnostics`
// problems with assets and, as notes, the values of Info.plist and the further Info.plist files that the bundle cannot
// have. If `diagnostics` contains errors, including earlier ones, the bundle is unchanged and the result is a success.
// Errors in the result: `bundle` is neither a compiled bundle nor an empty or new folder, or it is or contains one of
// `folders`; the source's Info.plist cannot be read; a file cannot be written or would exceed its limits. Throws
// std::runtime_error if the plug-in that draws pictures cannot be loaded.
[[nodiscard]] Runtime::Result<void> compileBundle(const SourceBundle::Source& source,
                                                  std::span<const std::filesystem::path> folders,
                                                  const std::filesystem::path& bundle,
                                                  SourceBundle::Diagnostics& diagnostics, const Progress& progress);

} // namespace Compiler
