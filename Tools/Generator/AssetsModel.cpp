#include "Generator/AssetsModel.h"

#include "Generator/CodeText.h"
#include "Generator/Namer.h"
#include <map>
#include <set>
#include <string_view>
#include <utility>

namespace Generator {

using SourceBundle::Diagnostics;
using SourceBundle::Severity;
using SourceBundle::SourceAsset;

namespace {

// The namespaces of an asset: its catalog, then the folders of its name.
std::string groupsOf(const SourceAsset& asset) {
    std::string groups = Namer::tableSpelling(asset.catalog);
    std::string_view name = asset.name;
    for (std::size_t end = name.find('/'); end != std::string_view::npos; end = name.find('/')) {
        groups.append("::").append(Namer::spelling(Namer::groupName(name.substr(0, end))));
        name.remove_prefix(end + 1);
    }
    return groups;
}

// A constant and a folder that provides a namespace may not have one name in C++.
void refuseNamesOfGroups(const std::vector<AssetConstant>& constants, Diagnostics& diagnostics) {
    std::set<std::string> groups;
    for (const AssetConstant& constant : constants)
        for (std::string group = constant.groups; group.find("::") != std::string::npos;
             group.resize(group.rfind("::")))
            groups.insert(group);
    for (const AssetConstant& constant : constants)
        if (groups.contains(constant.groups + "::" + constant.name))
            diagnostics.add(Severity::error,
                            {.message = "gives the name " + constant.name + ", which a folder beside it gives as well",
                             .file = constant.asset->path});
}

} // namespace

std::vector<AssetConstant> constantsOf(std::span<const SourceAsset> assets, Diagnostics& diagnostics) {
    std::vector<AssetConstant> constants;
    std::map<std::pair<std::string, std::string>, const SourceAsset*> taken; // by namespace and name
    for (const SourceAsset& asset : assets) {
        AssetConstant constant{.groups = groupsOf(asset), .name = {}, .asset = &asset};
        constant.name =
            Namer::spelling(Namer::assetName(std::string_view(asset.name).substr(asset.name.rfind('/') + 1)));
        if (constant.name.empty()) {
            diagnostics.add(Severity::error,
                            {.message = "gives no name: \"" + visibleText(asset.name) + '"', .file = asset.path});
            continue;
        }
        const auto [before, isNew] = taken.try_emplace({constant.groups, constant.name}, &asset);
        if (isNew)
            constants.push_back(std::move(constant));
        else if (before->second->kind == asset.kind && before->second->name == asset.name)
            diagnostics.add(Severity::warning,
                            {.message = "has the name of " + before->second->path.string() + " and is left out",
                             .file = asset.path});
        else
            diagnostics.add(Severity::error, {.message = "gives the name " + before->first.second + ", which " +
                                                         before->second->path.string() + " gives as well",
                                              .file = asset.path});
    }
    refuseNamesOfGroups(constants, diagnostics);
    return constants;
}

} // namespace Generator
