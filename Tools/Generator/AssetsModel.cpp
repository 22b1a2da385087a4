#include "Generator/AssetsModel.h"

#include "Generator/CodeText.h"
#include "Generator/NameClaims.h"
#include "Generator/Namer.h"
#include <string_view>
#include <utility>

namespace Generator {

using SourceBundle::Diagnostics;
using SourceBundle::Severity;
using SourceBundle::SourceAsset;
using SourceBundle::Topic;

namespace {

// The namespaces of an asset, beginning with the catalog's, and its own name. A part without a usable name is empty.
std::vector<std::string> pathOf(const SourceAsset& asset) {
    std::vector<std::string> path{Namer::tableSpelling(asset.catalog)};
    std::string_view name = asset.name;
    for (std::size_t end = name.find('/'); end != std::string_view::npos; end = name.find('/')) {
        path.push_back(Namer::spelling(Namer::groupName(name.substr(0, end))));
        name.remove_prefix(end + 1);
    }
    path.push_back(Namer::spelling(Namer::assetName(name)));
    return path;
}

// Why the path is not usable, or an empty string.
std::string faultOf(const std::vector<std::string>& path) {
    if (path.front().empty())
        return "its catalog's name has no letter or digit";
    if (path.back().empty())
        return "its name has no letter or digit";
    return "";
}

} // namespace

AssetTree assetTreeOf(std::span<const SourceAsset> assets, Diagnostics& diagnostics) {
    AssetTree tree;
    NameClaims names;
    for (std::size_t number = 0; number < assets.size(); ++number) {
        const SourceAsset& asset = assets[number];
        std::vector<std::string> path = pathOf(asset);
        std::string fault = faultOf(path);
        Topic topic = Topic::noAccessor;
        std::erase(path, std::string()); // folders without a usable name are dropped
        if (fault.empty())
            if (const auto conflict = names.claim(path, number)) {
                topic = Topic::nameClash;
                fault = "the name " + conflict->name + " belongs to " + assets[conflict->owner.member].path.string();
            }
        if (!fault.empty()) {
            diagnostics.add(
                Severity::warning,
                {.message = "the asset " + quote(asset.name) + " has no constant: " + fault, .file = asset.path}, topic,
                asset.name);
            tree.leftOut.push_back({&asset, std::move(fault)});
            continue;
        }
        std::string name = std::move(path.back());
        path.pop_back();
        tree.constants.push_back({qualified(path), std::move(name), &asset});
    }
    return tree;
}

} // namespace Generator
