#include "Gallery/Traits.h"

namespace Gallery {

nlohmann::ordered_json traitsOf(const AssetCatalog::Entry& entry, std::size_t variant) {
    const AssetCatalog::Fit fit = entry.fit(variant);
    auto json = nlohmann::ordered_json::object();
    if (fit.scale != 0)
        json["scale"] = fit.scale;
    if (fit.appearance != AssetCatalog::Appearance::any)
        json["appearance"] = fit.appearance == AssetCatalog::Appearance::dark ? "dark" : "light";
    if (fit.contrast != AssetCatalog::Contrast::any)
        json["contrast"] = "high";
    if (fit.direction != AssetCatalog::Direction::any)
        json["direction"] = fit.direction == AssetCatalog::Direction::rightToLeft ? "right-to-left" : "left-to-right";
    if (!entry.language(variant).empty())
        json["language"] = entry.language(variant);
    return json;
}

} // namespace Gallery
