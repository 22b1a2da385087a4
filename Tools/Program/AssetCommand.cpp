// lumora asset: writes one asset of a compiled catalog to a file.
#include "Program/Command.h"

#include "AssetCatalog/internal/Catalog.h"
#include "Program/AssetCatalogs.h"
#include "Program/Suggestion.h"
#include <CLI/CLI.hpp>
#include <memory>
#include <nlohmann/json.hpp>
#include <optional>
#include <vector>

namespace Tools {

namespace {

using AssetCatalog::Catalog;
using AssetCatalog::Entry;
using AssetCatalog::Fit;
using AssetCatalog::Kind;

struct AssetOptions {
    std::string bundle;
    std::string name;
    std::string output;
    std::vector<std::string> languages;
    bool isDark = false;
    unsigned scale = 1;
};

std::string colorText(const AssetCatalog::ColorValue& color) {
    const nlohmann::ordered_json json = {{"color-space", AssetCatalog::nameOf(color.space)},
                                         {"components", color.components}};
    return json.dump() + "\n";
}

Runtime::Result<std::string> bytesOf(const AssetCatalog::Blob& blob) {
    const auto bytes = blob.read();
    if (!bytes)
        return bytes.error();
    return std::string(bytes->begin(), bytes->end());
}

// The variant's bytes as they are in the catalog; for a colour, its colour space and components as JSON.
Runtime::Result<std::string> contentOf(const Entry& entry, std::size_t variant) {
    switch (entry.kind()) {
    case Kind::image:
        return bytesOf(entry.picture(variant).blob);
    case Kind::data:
        return bytesOf(entry.data(variant).blob);
    case Kind::color:
        break;
    }
    return colorText(entry.color(variant));
}

// The asset with this name; if there are several of different kinds, the image or else the colour.
std::optional<Entry> findEntry(const Catalog& catalog, const std::string& name) {
    for (const Kind kind : {Kind::image, Kind::color, Kind::data})
        if (const auto index = catalog.find(kind, name))
            return catalog[*index];
    return std::nullopt;
}

std::vector<std::string> namesOf(const Catalog& catalog) {
    std::vector<std::string> names;
    for (std::size_t i = 0; i < catalog.size(); ++i)
        names.emplace_back(catalog[i].name());
    return names;
}

Exit writeAsset(const AssetOptions& options) {
    const auto catalog = openCatalog(options.bundle);
    if (!catalog)
        return fail(catalog.error());
    const auto entry = *catalog ? findEntry(**catalog, options.name) : std::nullopt;
    if (!entry) {
        const std::vector<std::string> names = *catalog ? namesOf(**catalog) : std::vector<std::string>();
        return fail({.message = "the bundle has no asset with this name" + suggestion(options.name, names),
                     .file = options.name});
    }
    const Fit wanted{.appearance = options.isDark ? AssetCatalog::Appearance::dark : AssetCatalog::Appearance::light,
                     .direction = AssetCatalog::Direction::leftToRight,
                     .scale = static_cast<std::uint8_t>(options.scale)};
    const auto content = contentOf(*entry, entry->best(wanted, options.languages));
    return content ? write(options.output, *content) : fail(content.error());
}

} // namespace

void addAssetCommand(CLI::App& program, Exit& exit) {
    auto options = std::make_shared<AssetOptions>();
    CLI::App* command = program.add_subcommand("asset", "Write one asset to a file.");
    command->add_option("NAME", options->name, "The asset's name, folder/name where folders provide a namespace")
        ->required();
    command->add_option("--bundle", options->bundle, "The bundle to read (default: Lumora's own)")->check(notEmpty());
    command->add_flag("--dark", options->isDark, "The variant for dark mode");
    command->add_option("--scale", options->scale, "Pixels per point")
        ->check(CLI::Range(1U, 9U))
        ->capture_default_str();
    command
        ->add_option("--language", options->languages,
                     "The variant for this language, such as pt-BR (may be repeated; the first is preferred)")
        ->allow_extra_args(false);
    command->add_option("-o,--output", options->output, "Where to write; - is standard output")
        ->required()
        ->check(notEmpty());
    command->callback([options, &exit] { exit = writeAsset(*options); });
}

} // namespace Tools
