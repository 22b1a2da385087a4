#include "Generator/AssetsModel.h"

#include "Generator/CodeText.h"
#include "Generator/NameClaims.h"
#include "Generator/Namer.h"
#include <algorithm>
#include <numeric>
#include <string_view>
#include <tuple>
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

// The numbers of the assets by catalog, name and kind.
std::vector<std::size_t> sortedNumbers(std::span<const SourceAsset> assets) {
    std::vector<std::size_t> numbers(assets.size());
    std::iota(numbers.begin(), numbers.end(), std::size_t{0});
    std::ranges::stable_sort(numbers, {}, [assets](std::size_t number) {
        const SourceAsset& asset = assets[number];
        return std::tuple<std::string_view, std::string_view, std::string_view>(asset.catalog, asset.name,
                                                                                AssetCatalog::nameOf(asset.kind));
    });
    return numbers;
}

struct ConstantName {
    std::vector<std::string> path;
    Topic topic = Topic::noAccessor; // of `fault`
    std::string fault;               // why there is no constant, or empty
};

// If names clash, the first in alphabetical order is kept. The order of the folders does not matter, because a bundle
// does not know them, and its gallery shows the same constants.
std::vector<ConstantName> constantNames(std::span<const SourceAsset> assets) {
    std::vector<ConstantName> names(assets.size());
    NameClaims claims;
    for (const std::size_t number : sortedNumbers(assets)) {
        auto& [path, topic, fault] = names[number];
        path = pathOf(assets[number]);
        fault = faultOf(path);
        std::erase(path, std::string()); // folders without a usable name are dropped
        if (!fault.empty())
            continue;
        if (const auto conflict = claims.claim(path, number)) {
            topic = Topic::nameClash;
            fault = "the name " + conflict->name + " belongs to " + assets[conflict->owner.member].path.string();
        }
    }
    return names;
}

} // namespace

AssetTree assetTreeOf(std::span<const SourceAsset> assets, Diagnostics& diagnostics) {
    std::vector<ConstantName> names = constantNames(assets);
    AssetTree tree;
    for (std::size_t number = 0; number < assets.size(); ++number) {
        const SourceAsset& asset = assets[number];
        auto& [path, topic, fault] = names[number];
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
