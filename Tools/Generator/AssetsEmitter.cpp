#include "Generator/AssetsEmitter.h"

#include "Generator/AssetsTemplates.h"
#include "Generator/CodeText.h"
#include "Generator/CodeWriter.h"
#include <array>
#include <map>
#include <utility>

namespace Generator {

namespace {

struct KindWords {
    const char* record;  // suffix of the record type
    const char* factory; // function of RecordFactory
};
// By AssetCatalog::Kind.
constexpr std::array<KindWords, 3> kindWords = {{{"Images", "image"}, {"Colors", "color"}, {"Data", "data"}}};

const KindWords& wordsOf(const AssetConstant& constant) {
    return kindWords[static_cast<std::size_t>(constant.asset->kind)];
}

std::string nameSpaceOf(const AssetConstant& constant, const Options& options) {
    return options.module + "::" + options.module + "Asset::" + constant.groups;
}

// The namespace of the constant's catalog, which is also the name of the catalog's header.
std::string catalogOf(const AssetConstant& constant) {
    return constant.groups.substr(0, constant.groups.find(':'));
}

void declare(CodeWriter& code, const AssetConstant& constant, const Options& options) {
    code.enter(nameSpaceOf(constant, options));
    code.addComment(quote(constant.asset->name));
    code.add("extern LUMORA_EXPORT const ::{{module}}::{{module}}{{record}} {{name}};",
             {{"record", wordsOf(constant).record}, {"name", constant.name}});
}

void define(CodeWriter& code, const AssetConstant& constant, const Options& options) {
    code.enter(nameSpaceOf(constant, options));
    const std::string prefix = "::" + options.module + "::" + options.module; // "::Shop::Shop"
    const auto [record, factory] = wordsOf(constant);
    code.addAssignment("constinit const " + prefix + record + ' ' + constant.name,
                       prefix + "AssetModule::RecordFactory::" + factory + '(' + literal(constant.asset->name) + ");");
}

} // namespace

std::vector<OutputFile> emitAssets(std::span<const AssetConstant> constants, const Options& options) {
    const std::string tree = options.module + "Asset";
    std::map<std::string, CodeWriter> headers; // by the catalog's namespace
    CodeWriter source(options.module);
    source.add("#include \"{{module}}Asset.h\"\n\n#include \"{{module}}Asset/Internal/RecordFactory.h\"");
    for (const AssetConstant& constant : constants) {
        const auto [header, isNew] = headers.try_emplace(catalogOf(constant), options.module);
        if (isNew)
            header->second.add(
                "#pragma once\n\n#include \"../{{module}}AssetRecords.h\"\n#include \"Runtime/Export.h\"");
        declare(header->second, constant, options);
        define(source, constant, options);
    }

    CodeWriter umbrella(options.module);
    umbrella.add("// All assets of the module.\n#pragma once\n");
    std::vector<std::string> includes = {options.module + "AssetRecords.h"};
    std::vector<OutputFile> files;
    for (auto& [catalog, header] : headers) {
        includes.push_back(tree + "/" + catalog + ".h");
        files.push_back({tree + "/" + catalog + ".h", header.take()});
    }
    umbrella.addIncludes(std::move(includes));
    files.push_back({tree + ".h", umbrella.take()});
    files.push_back({tree + ".cpp", source.take()});
    files.push_back({tree + "Records.h", filled(recordsHeader, options.module)});
    files.push_back({tree + "/Internal/RecordFactory.h", filled(recordFactoryHeader, options.module)});
    files.push_back({options.module + "Conveniences.h", filled(conveniencesHeader, options.module)});
    return files;
}

} // namespace Generator
