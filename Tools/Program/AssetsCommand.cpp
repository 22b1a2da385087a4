// lumora assets, lumora asset: what a compiled catalog holds.
#include "Program/Command.h"

#include "AssetCatalog/internal/Catalog.h"
#include "Generator/CodeText.h"
#include "Program/OwnBundle.h"
#include <CLI/CLI.hpp>
#include <algorithm>
#include <array>
#include <cerrno>
#include <filesystem>
#include <memory>
#include <nlohmann/json.hpp>
#include <optional>
#include <system_error>

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
    bool isDark = false;
    unsigned scale = 1;
};

// No catalog: the bundle has no assets, and a compile made none for it.
Runtime::Result<std::optional<Catalog>> openCatalog(const std::string& bundle) {
    const std::string folder = bundle.empty() ? ownBundle() : bundle;
    std::error_code failed;
    if (!std::filesystem::is_directory(folder, failed))
        return Runtime::Error{.message = "is not a bundle", .file = folder};
    auto catalog = Catalog::open(folder + "/" + std::string(AssetCatalog::fileName));
    if (catalog)
        return std::optional(*std::move(catalog));
    if (catalog.error().cause == ENOENT)
        return std::optional<Catalog>();
    return std::move(catalog.error());
}

Exit listAssets(const AssetOptions& options) {
    const auto opened = openCatalog(options.bundle);
    if (!opened)
        return fail(opened.error());
    const std::optional<Catalog>& catalog = *opened;
    std::vector<std::string> lines;
    for (std::size_t i = 0; catalog && i < catalog->size(); ++i) {
        const Entry entry = (*catalog)[i];
        std::string line(AssetCatalog::nameOf(entry.kind()));
        for (const std::string_view name : {entry.catalog(), entry.name()})
            line.append("\t").append(Generator::visibleText(name, std::string::npos));
        line += '\n';
        lines.push_back(std::move(line));
    }
    std::ranges::sort(lines);
    std::string all;
    for (const std::string& line : lines)
        all += line;
    return print(all);
}

std::string colorText(const AssetCatalog::ColorValue& color) {
    const nlohmann::ordered_json json = {{"color-space", AssetCatalog::nameOf(color.space)},
                                         {"components", color.components}};
    return json.dump() + "\n";
}

// The bytes of the variant that fits, as they stand in the catalog; a colour as its space and components.
Runtime::Result<std::string> variantText(const Entry& entry, std::size_t variant) {
    const auto text = [](const AssetCatalog::Blob& blob) -> Runtime::Result<std::string> {
        const auto bytes = blob.read();
        if (!bytes)
            return bytes.error();
        return std::string(bytes->begin(), bytes->end());
    };
    switch (entry.kind()) {
    case Kind::image:
        return text(entry.picture(variant).blob);
    case Kind::data:
        return text(entry.data(variant).blob);
    case Kind::color:
        break;
    }
    return colorText(entry.color(variant));
}

Exit extractAsset(const AssetOptions& options) {
    const auto opened = openCatalog(options.bundle);
    if (!opened)
        return fail(opened.error());
    const std::optional<Catalog>& catalog = *opened;
    Fit wanted;
    wanted.appearance = options.isDark ? AssetCatalog::Appearance::dark : AssetCatalog::Appearance::light;
    wanted.direction = AssetCatalog::Direction::leftToRight;
    wanted.scale = static_cast<std::uint8_t>(options.scale);
    for (const Kind kind : {Kind::image, Kind::color, Kind::data})
        if (const auto index = catalog ? catalog->find(kind, options.name) : std::nullopt) {
            const Entry entry = (*catalog)[*index];
            const auto text = variantText(entry, entry.best(wanted));
            return text ? write(options.output, *text) : fail(text.error());
        }
    return fail({.message = "no asset of the bundle has this name", .file = options.name});
}

} // namespace

void addAssetCommands(CLI::App& program, Exit& exit) {
    auto options = std::make_shared<AssetOptions>();
    CLI::App* list = program.add_subcommand("assets", "List every asset: kind, catalog, name.");
    list->add_option("--bundle", options->bundle, "The bundle to read (default: the module's own)");
    list->callback([options, &exit] { exit = listAssets(*options); });

    CLI::App* one = program.add_subcommand("asset", "Write one asset out as it stands in the catalog.");
    one->add_option("NAME", options->name, "The asset's name, folder/name where folders provide a namespace")
        ->required();
    one->add_option("--bundle", options->bundle, "The bundle to read (default: the module's own)");
    one->add_flag("--dark", options->isDark, "The variant for a dark screen");
    one->add_option("--scale", options->scale, "Pixels in a point")->check(CLI::Range(1U, 9U))->capture_default_str();
    one->add_option("-o,--output", options->output, "Where to write; - is standard output")->required()->check(named());
    one->callback([options, &exit] { exit = extractAsset(*options); });
}

} // namespace Tools
