// Generator/StringsEmitter.h
// The tree of texts as headers and sources.
#pragma once

#include "Generator/Generator.h"
#include "Generator/Model.h"
#include <span>
#include <vector>

namespace Generator {

// For a catalog without faults and options that hold what their comments say.
[[nodiscard]] std::vector<OutputFile> emitStrings(std::span<const CatalogTable> catalog, const Options& options);

} // namespace Generator
