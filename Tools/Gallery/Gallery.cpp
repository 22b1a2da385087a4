#include "Gallery/Gallery.h"

#include "Gallery/Assets.h"
#include "Gallery/PageTemplate.h"
#include "Gallery/Texts.h"
#include <string_view>
#include <utility>

namespace Gallery {

namespace {

// JSON for a script element, escaped so that it cannot end the element. Invalid UTF-8 is replaced.
std::string embedded(const nlohmann::ordered_json& json) {
    const std::string text = json.dump(-1, ' ', false, nlohmann::ordered_json::error_handler_t::replace);
    std::string safe;
    safe.reserve(text.size());
    for (const char c : text) {
        if (c == '<')
            safe += "\\u003c";
        else
            safe += c;
    }
    return safe;
}

// The page with `resources` and `pictures` in place of its placeholders.
std::string filled(const std::string& resources, const std::string& pictures) {
    static constexpr std::string_view resourcesMark = "@RESOURCES@", picturesMark = "@PICTURES@";
    const std::size_t first = pageTemplate.find(resourcesMark);
    const std::size_t second = pageTemplate.find(picturesMark, first);
    const std::size_t between = first + resourcesMark.size();
    std::string page(pageTemplate.substr(0, first));
    page.append(resources).append(pageTemplate.substr(between, second - between));
    return page.append(pictures).append(pageTemplate.substr(second + picturesMark.size()));
}

} // namespace

Runtime::Result<std::string> pageOf(const SourceBundle::Source& source, const std::filesystem::path& bundle,
                                    const Options& options) {
    auto assets = assetsOf(bundle);
    if (!assets)
        return std::move(assets.error());
    nlohmann::ordered_json resources = {{"title", options.title}};
    const std::string prefix = options.module.empty() ? "" : options.module + "::" + options.module; // "Shop::Shop"
    resources["trees"] = {{"texts", prefix.empty() ? "" : prefix + "Strings::"},
                          {"assets", prefix.empty() ? "" : prefix + "Asset::"}};
    resources.update(textsOf(source, options.names));
    resources["assets"] = std::move(assets->list);
    return filled(embedded(resources), embedded(assets->pictures));
}

} // namespace Gallery
