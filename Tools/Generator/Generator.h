// Generator/Generator.h
// The typed trees of a source as C++: an accessor for every text, a constant for every asset.
// Text: UTF-8. Threads: any; no state. The same source and options give the same bytes.
#pragma once

#include "Generator/AssetsModel.h"
#include "Generator/Model.h"
#include "Generator/OutputFile.h"
#include "SourceBundle/Catalogs.h"
#include "SourceBundle/Diagnostics.h"
#include "SourceBundle/Source.h"
#include <cstddef>
#include <filesystem>
#include <string>
#include <vector>

namespace Generator {

inline constexpr std::size_t maxShards = 1000;

struct Options {
    std::string module; // a C++ identifier: the namespace of the tree, and what its files' names begin with
    std::vector<std::string> includes{}; // headers of hand-made members, included by the tree's own header
    std::vector<std::string> headers{};  // of hand-made parts of the module, included by NAME.h
    std::size_t shards = 1;              // how many sources the accessors are split into; 1 to maxShards
    std::filesystem::path names{};       // see NamesFile; empty: none
};

// What both trees have, and what they leave out. Points into its source.
struct Model {
    std::vector<CatalogTable> tables;
    std::vector<SourceBundle::SourceAsset> assets;
    AssetTree assetTree; // of these assets
};

// Everything that is left out is a warning. Keys that only translations have are one note.
[[nodiscard]] Model modelOf(const SourceBundle::Source& source, const Options& options,
                            SourceBundle::Diagnostics& diagnostics);

// The files of the module: NAME.h, which includes the others; of the tree of texts NAMEStrings.h and what it includes,
// the sources NAMEStrings.cpp and NAMEStrings-1.cpp to NAMEStrings-SHARDS.cpp; of the tree of assets NAMEAsset.h and
// what it includes, NAMEAsset.cpp, and NAMEConveniences.h; NAMEResources.h and .cpp.
[[nodiscard]] std::vector<OutputFile> filesOf(const Model& model, const Options& options);

// Errors where the options are not what their comments say.
void check(const Options& options, SourceBundle::Diagnostics& diagnostics);

// Writes the files into `folder` and removes those of an earlier run that are no longer made.
[[nodiscard]] Runtime::Result<void> writeModule(const Model& model, const Options& options,
                                                const std::filesystem::path& folder);

} // namespace Generator
