// Generator/Generator.h
// The typed trees of a source bundle as C++: an accessor for every text, a constant for every asset.
// Text: UTF-8. Threads: any; no state. The same tables and options give the same bytes.
#pragma once

#include "Generator/OutputFile.h"
#include "SourceBundle/Catalogs.h"
#include "SourceBundle/Diagnostics.h"
#include "SourceBundle/Tables.h"
#include <cstddef>
#include <string>
#include <vector>

namespace Generator {

inline constexpr std::size_t maxShards = 1000;

struct Options {
    std::string module; // a C++ identifier: the namespace of the tree, and what its files' names begin with
    std::vector<std::string> includes; // headers of hand-made members, included by the tree's own header
    std::size_t shards = 1;            // how many sources the accessors are split into; 1 to maxShards
};

// The files of the tree of texts: NAMEStrings.h and what it includes, the sources NAMEStrings.cpp and NAMEStrings-1.cpp
// to NAMEStrings-SHARDS.cpp, and NAMEResources.h and .cpp. Every fault of the tables is reported; no files when one is
// an error, whoever reported it.
[[nodiscard]] std::vector<OutputFile> generateStrings(const std::vector<SourceBundle::SourceTable>& tables,
                                                      const Options& options, SourceBundle::Diagnostics& diagnostics);

// The files of the tree of assets: NAMEAsset.h and what it includes, and NAMEAsset.cpp, which needs NAMEResources.h
// beside it. Every fault is reported; no files when one is an error, whoever reported it, or when there are no assets.
[[nodiscard]] std::vector<OutputFile> generateAssets(const std::vector<SourceBundle::SourceAsset>& assets,
                                                     const Options& options, SourceBundle::Diagnostics& diagnostics);

// Both trees of the source bundle at `source`, written into `folder`. What is wrong in the sources goes to
// `diagnostics`; after an error among them nothing is written. The result tells of the file system's failures.
[[nodiscard]] Runtime::Result<void> generateModule(const std::filesystem::path& source, const Options& options,
                                                   const std::filesystem::path& folder,
                                                   SourceBundle::Diagnostics& diagnostics);

} // namespace Generator
