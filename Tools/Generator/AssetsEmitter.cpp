#include "Generator/AssetsEmitter.h"

#include "Generator/AssetsTemplates.h"
#include "Generator/CodeText.h"
#include "Generator/CodeWriter.h"
#include <array>
#include <map>

namespace Generator {

namespace {

struct KindWords {
    const char* record; // what a module's name goes before
    const char* maker;
};
constexpr std::array<KindWords, 3> kindWords = {{{"Images", "image"}, {"Colors", "color"}, {"Data", "data"}}};

const KindWords& wordsOf(const AssetConstant& constant) {
    return kindWords[static_cast<std::size_t>(constant.asset->kind)];
}

std::string nameSpaceOf(const AssetConstant& constant, const Options& options) {
    return options.module + "::" + options.module + "Asset::" + constant.groups;
}

// The catalog's own namespace names its header.
std::string headerOf(const AssetConstant& constant) {
    return constant.groups.substr(0, constant.groups.find(':'));
}

void declare(CodeWriter& code, const AssetConstant& constant, const Options& options) {
    code.enter(nameSpaceOf(constant, options));
    code.add("// \"{{asset}}\"", {{"asset", visibleText(constant.asset->name)}});
    code.add("extern LUMORA_EXPORT const ::{{module}}::{{module}}{{record}} {{name}};",
             {{"record", wordsOf(constant).record}, {"name", constant.name}});
}

void define(CodeWriter& code, const AssetConstant& constant, const Options& options) {
    code.enter(nameSpaceOf(constant, options));
    code.add("constinit const ::{{module}}::{{module}}{{record}} {{name}} =\n    "
             "::{{module}}::{{module}}AssetModule::Catalog::{{maker}}({{asset}});",
             {{"record", wordsOf(constant).record},
              {"name", constant.name},
              {"maker", wordsOf(constant).maker},
              {"asset", literal(constant.asset->name)}});
}

} // namespace

std::vector<OutputFile> emitAssets(std::span<const AssetConstant> constants, const Options& options) {
    const std::string tree = options.module + "Asset";
    std::map<std::string, CodeWriter> headers; // by the catalog's namespace
    CodeWriter source(options.module);
    source.add("#include \"{{module}}Asset.h\"\n\n#include \"{{module}}Asset/Internal/Catalog.h\"");
    source.addBlankLine();
    for (const AssetConstant& constant : constants) {
        const auto [header, isNew] = headers.try_emplace(headerOf(constant), options.module);
        if (isNew) {
            header->second.add(
                "#pragma once\n\n#include \"../{{module}}AssetRecords.h\"\n#include \"Runtime/Export.h\"");
            header->second.addBlankLine();
        }
        declare(header->second, constant, options);
        define(source, constant, options);
    }

    CodeWriter umbrella(options.module);
    umbrella.add("// Every asset of the module by name.\n#pragma once\n\n#include \"{{module}}AssetRecords.h\"");
    std::vector<OutputFile> files;
    for (auto& [catalog, header] : headers) {
        umbrella.add("#include \"{{module}}Asset/{{catalog}}.h\"", {{"catalog", catalog}});
        files.push_back({tree + "/" + catalog + ".h", header.take()});
    }
    CodeWriter records(options.module);
    records.add(recordsHeader);
    CodeWriter maker(options.module);
    maker.add(makerHeader);
    files.push_back({tree + ".h", umbrella.take()});
    files.push_back({tree + ".cpp", source.take()});
    files.push_back({tree + "Records.h", records.take()});
    files.push_back({tree + "/Internal/Catalog.h", maker.take()});
    return files;
}

} // namespace Generator
