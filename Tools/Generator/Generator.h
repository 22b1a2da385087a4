// Generator/Generator.h
// Generates the typed trees of a source as C++: an accessor for every text, a constant for every asset.
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
    std::string module;                  // a C++ identifier: the namespace of the trees and the prefix of file names
    std::vector<std::string> includes{}; // headers with functions for the tree of texts, included by NAMEStrings.h
    std::vector<std::string> headers{};  // headers with other hand-written parts of the module, included by NAME.h
    std::size_t shards = 1;              // number of source files for the accessors; 1 to maxShards
    std::filesystem::path names{};       // see NamesFile; empty: none
};

// The content of both trees, and what they leave out. Points into its source, which must outlive it. Can be moved, but
// a copy would point into the original.
struct Model {
    std::vector<AccessorTable> tables;
    std::vector<SourceBundle::SourceAsset> assets;
    AssetTree assetTree; // points into `assets`
};

// Warns about everything that is left out. Keys that exist only in translations give one note.
[[nodiscard]] Model modelOf(const SourceBundle::Source& source, const Options& options,
                            SourceBundle::Diagnostics& diagnostics);

// The files of the module, for options that check() accepts: NAME.h, which includes all other headers but the internal
// ones; for texts NAMEStrings.h with the headers it includes, NAMEStrings.cpp, and NAMEStrings-1.cpp to
// NAMEStrings-SHARDS.cpp; for assets NAMEAsset.h with the headers it includes, NAMEAsset.cpp and NAMEConveniences.h;
// NAMEResources.h and .cpp. The internal headers are in NAMEStrings/Internal and NAMEAsset/Internal.
[[nodiscard]] std::vector<OutputFile> filesOf(const Model& model, const Options& options);

// Reports as errors: a name that Namer::isModuleName() rejects, headers that cannot be in an #include line, too many
// shards or none.
void check(const Options& options, SourceBundle::Diagnostics& diagnostics);

// Writes the files into `folder` and removes files of earlier runs that are no longer generated.
[[nodiscard]] Runtime::Result<void> writeModule(const Model& model, const Options& options,
                                                const std::filesystem::path& folder);

} // namespace Generator
