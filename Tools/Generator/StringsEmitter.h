// Generator/StringsEmitter.h
// Makes the headers and sources of the tree of texts, and NAMEResources.h and .cpp, the class of the
// module's bundle.
#pragma once

#include "Generator/Generator.h"
#include "Generator/Model.h"
#include <span>
#include <vector>

namespace Generator {

// Requires valid options; see check().
[[nodiscard]] std::vector<OutputFile> emitStrings(std::span<const AccessorTable> tables, const Options& options);

} // namespace Generator
