#include "SourceBundle/KnownProperties.h"

#include <algorithm>
#include <span>
#include <string_view>

namespace SourceBundle {

namespace {

struct Property {
    std::string_view name;
    Json::value_t type;
};

constexpr Property setProperties[] = {
    {"auto-scaling", Json::value_t::string},
    {"compression-type", Json::value_t::string},
    {"localizable", Json::value_t::boolean},
    {"on-demand-resource-tags", Json::value_t::array},
    {"preserves-vector-representation", Json::value_t::boolean},
    {"template-rendering-intent", Json::value_t::string},
};

constexpr Property entryProperties[] = {
    {"alignment-insets", Json::value_t::object},
    {"appearances", Json::value_t::array},
    {"color", Json::value_t::object},
    {"compression-type", Json::value_t::string},
    {"display-gamut", Json::value_t::string},
    {"filename", Json::value_t::string},
    {"graphics-feature-set", Json::value_t::string},
    {"height-class", Json::value_t::string},
    {"idiom", Json::value_t::string},
    {"language-direction", Json::value_t::string},
    {"locale", Json::value_t::string},
    {"memory", Json::value_t::string},
    {"resizing", Json::value_t::object},
    {"scale", Json::value_t::string},
    {"screen-width", Json::value_t::string},
    {"subtype", Json::value_t::string},
    {"unassigned", Json::value_t::boolean},
    {"universal-type-identifier", Json::value_t::string},
    {"width-class", Json::value_t::string},
};

} // namespace

std::vector<std::string> unknownProperties(const Json& object, KnownProperties known) {
    const std::span<const Property> properties =
        known == KnownProperties::ofSet ? std::span<const Property>(setProperties) : entryProperties;
    std::vector<std::string> unknown;
    if (object.is_object())
        for (const auto& item : object.items())
            if (std::ranges::none_of(properties, [&](const Property& property) {
                    return property.name == item.key() && property.type == item.value().type();
                }))
                unknown.push_back(item.key());
    return unknown;
}

} // namespace SourceBundle
