// lumora assets: lists the assets of a compiled catalog.
#include "Program/Command.h"

#include "AssetCatalog/internal/Catalog.h"
#include "Gallery/Traits.h"
#include "Generator/CodeText.h"
#include "Program/AssetCatalogs.h"
#include <CLI/CLI.hpp>
#include <algorithm>
#include <memory>
#include <nlohmann/json.hpp>
#include <tuple>
#include <vector>

namespace Tools {

namespace {

using AssetCatalog::Entry;
using AssetCatalog::Kind;
using nlohmann::ordered_json;

struct ListOptions {
    std::string bundle;
    std::string format = "text";
};

// Kind, catalog and name, separated by tabs.
std::string lineOf(const Entry& entry) {
    std::string line(AssetCatalog::nameOf(entry.kind()));
    for (const std::string_view name : {entry.catalog(), entry.name()})
        line.append("\t").append(Generator::visibleText(name, std::string::npos));
    return line.append("\n");
}

ordered_json variantOf(const Entry& entry, std::size_t variant) {
    ordered_json json = Gallery::traitsOf(entry, variant);
    switch (entry.kind()) {
    case Kind::image: {
        const AssetCatalog::PictureView picture = entry.picture(variant);
        json["width"] = picture.width;
        json["height"] = picture.height;
        json["points"] = {picture.points.width, picture.points.height};
        json["bytes"] = picture.blob.size;
        break;
    }
    case Kind::color: {
        const AssetCatalog::ColorValue color = entry.color(variant);
        json["color-space"] = AssetCatalog::nameOf(color.space);
        json["components"] = color.components;
        break;
    }
    case Kind::data: {
        const AssetCatalog::DataView data = entry.data(variant);
        json["type"] = data.typeIdentifier;
        json["bytes"] = data.blob.size;
        break;
    }
    }
    return json;
}

ordered_json assetOf(const Entry& entry) {
    ordered_json json = {{"kind", AssetCatalog::nameOf(entry.kind())},
                         {"catalog", entry.catalog()},
                         {"name", entry.name()},
                         {"variants", ordered_json::array()}};
    for (std::size_t variant = 0; variant < entry.variants(); ++variant)
        json["variants"].push_back(variantOf(entry, variant));
    return json;
}

Exit listAssets(const ListOptions& options) {
    const auto catalog = openCatalog(options.bundle);
    if (!catalog)
        return fail(catalog.error());
    std::vector<Entry> entries;
    for (std::size_t i = 0; *catalog && i < (*catalog)->size(); ++i)
        entries.push_back((**catalog)[i]);
    std::ranges::sort(entries, {}, [](const Entry& entry) {
        return std::tuple(AssetCatalog::nameOf(entry.kind()), entry.catalog(), entry.name());
    });
    if (options.format == "json") {
        ordered_json list = ordered_json::array();
        for (const Entry& entry : entries)
            list.push_back(assetOf(entry));
        return print(list.dump(2, ' ', false, ordered_json::error_handler_t::replace) + "\n");
    }
    std::string lines;
    for (const Entry& entry : entries)
        lines += lineOf(entry);
    return print(lines);
}

} // namespace

void addAssetsCommand(CLI::App& program, Exit& exit) {
    auto options = std::make_shared<ListOptions>();
    CLI::App* command = program.add_subcommand("assets", "List every asset: kind, catalog, name.");
    command->add_option("--bundle", options->bundle, "The bundle to read (default: Lumora's own)")->check(notEmpty());
    command->add_option("--format", options->format, "text or json, which lists the variants, too")
        ->check(CLI::IsMember({"text", "json"}))
        ->capture_default_str();
    command->callback([options, &exit] { exit = listAssets(*options); });
}

} // namespace Tools
