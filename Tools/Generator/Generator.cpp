#include "Generator/Generator.h"

#include "Generator/AssetsEmitter.h"
#include "Generator/AssetsModel.h"
#include "Generator/CodeText.h"
#include "Generator/Model.h"
#include "Generator/Namer.h"
#include "Generator/StringsEmitter.h"
#include <algorithm>
#include <iterator>

namespace Generator {

using SourceBundle::Diagnostics;
using SourceBundle::Severity;

namespace {

void check(const Options& options, Diagnostics& diagnostics) {
    if (!Namer::isModuleName(options.module))
        diagnostics.add(Severity::error,
                        {.message = "the module's name is no C++ identifier, or one that C++ keeps for itself: \"" +
                                    visibleText(options.module) + '"',
                         .file = {}});
    for (const std::string& header : options.includes)
        if (header.find_first_of("\"\\\n\r") != std::string::npos)
            diagnostics.add(Severity::error,
                            {.message = "cannot be included: \"" + visibleText(header) + '"', .file = {}});
    if (options.shards == 0 || options.shards > maxShards)
        diagnostics.add(
            Severity::error,
            {.message = "the accessors are split into 1 to " + std::to_string(maxShards) + " sources", .file = {}});
}

} // namespace

std::vector<OutputFile> generateStrings(const std::vector<SourceBundle::SourceTable>& tables, const Options& options,
                                        Diagnostics& diagnostics) {
    check(options, diagnostics);
    const std::vector<CatalogTable> catalog = catalogOf(tables, diagnostics);
    return diagnostics.hasErrors() ? std::vector<OutputFile>() : emitStrings(catalog, options);
}

std::vector<OutputFile> generateAssets(const std::vector<SourceBundle::SourceAsset>& assets, const Options& options,
                                       Diagnostics& diagnostics) {
    const std::vector<AssetConstant> constants = constantsOf(assets, diagnostics);
    return constants.empty() || diagnostics.hasErrors() ? std::vector<OutputFile>() : emitAssets(constants, options);
}

Runtime::Result<void> generateModule(const std::filesystem::path& source, const Options& options,
                                     const std::filesystem::path& folder, Diagnostics& diagnostics) {
    const auto tables = SourceBundle::developmentTables(source, diagnostics);
    std::vector<OutputFile> files = generateStrings(tables, options, diagnostics);
    const auto assets = SourceBundle::sourceAssets(source, diagnostics);
    std::ranges::move(generateAssets(assets, options, diagnostics), std::back_inserter(files));
    if (diagnostics.hasErrors())
        return {};
    // With the last table or catalog of a source, nothing new is made in these.
    const std::filesystem::path texts = options.module + "Strings", constants = options.module + "Asset";
    return writeFiles(folder, files, {texts, texts / "Internal", constants, constants / "Internal"});
}

} // namespace Generator
