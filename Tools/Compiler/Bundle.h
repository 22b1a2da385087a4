// Compiler/Bundle.h
// Makes the bundle that ships from a source bundle: binary tables, one compiled asset catalog, Info.plist.
// Text: UTF-8; paths as the file system has them. Threads: one compile of one output at a time.
#pragma once

#include "Runtime/internal/Result.h"
#include "SourceBundle/Diagnostics.h"
#include "SourceBundle/Source.h"
#include <cstddef>
#include <filesystem>
#include <functional>
#include <string_view>

namespace Compiler {

// Hears of each step before it is taken: what, and how many of how many.
using Progress = std::function<void(std::string_view what, std::size_t done, std::size_t all)>;

// Compiles `source`, which was read from `folders`, into `bundle`, which is made aside and put in place whole: a reader
// of an older bundle of that name, or one that comes after a compile was killed, finds the old bundle or the new one.
// What is wrong in the sources goes to `diagnostics`; after an error among them nothing is put in place. The result
// tells of the file system's failures. Only a bundle is ever replaced, never another folder, and none that holds a
// source.
[[nodiscard]] Runtime::Result<void> compileBundle(const SourceBundle::Source& source,
                                                  std::span<const std::filesystem::path> folders,
                                                  const std::filesystem::path& bundle,
                                                  SourceBundle::Diagnostics& diagnostics, const Progress& progress);

} // namespace Compiler
