#include "SourceBundle/ColorComponents.h"

#include "SourceBundle/LowerCase.h"
#include "SourceBundle/MessageText.h"
#include <algorithm>
#include <array>
#include <charconv>
#include <cstdint>
#include <optional>
#include <string_view>
#include <utility>

namespace SourceBundle {

using AssetCatalog::ColorSpace;
using AssetCatalog::ColorValue;

namespace {

// Components outside 0 to 1 are colours outside of the space; no screen reaches this limit.
constexpr double largestComponent = 16;

std::optional<ColorSpace> colorSpaceNamed(const std::string& name) {
    static constexpr std::array<std::pair<std::string_view, ColorSpace>, 6> spaces = {
        {{"srgb", ColorSpace::srgb},
         {"", ColorSpace::srgb},
         {"extended-srgb", ColorSpace::extendedSrgb},
         {"display-p3", ColorSpace::displayP3},
         {"gray-gamma-22", ColorSpace::gray},
         {"extended-gray", ColorSpace::gray}}};
    for (const auto& [known, space] : spaces)
        if (known == lowerCase(name))
            return space;
    return std::nullopt;
}

// Parses the whole text as a number; `format` is the base of an integer, or a std::chars_format.
template <class Number, class Format> std::optional<double> parsed(std::string_view text, Format format) {
    Number value{};
    const auto [end, failure] = std::from_chars(text.data(), text.data() + text.size(), value, format);
    return failure == std::errc() && end == text.data() + text.size() ? std::optional<double>(value) : std::nullopt;
}

std::optional<double> textValue(std::string_view text, bool isAlpha) {
    if (text.starts_with("0x") || text.starts_with("0X")) {
        const auto value = parsed<std::uint32_t>(text.substr(2), 16);
        return value ? std::optional(*value / 255) : std::nullopt;
    }
    const auto value = parsed<double>(text, std::chars_format::general);
    if (!value)
        return std::nullopt;
    const bool isFraction = text.find_first_of(".eE") != std::string_view::npos || (isAlpha && *value <= 1);
    return isFraction ? *value : *value / 255;
}

std::optional<double> componentValue(const Json& component, bool isAlpha) {
    if (component.is_null() && isAlpha)
        return 1;
    std::optional<double> value;
    if (component.is_string())
        value = textValue(component.get_ref<const std::string&>(), isAlpha);
    else if (component.is_number())
        value = component.get<double>();
    const double smallest = isAlpha ? 0 : -largestComponent;
    const double largest = isAlpha ? 1 : largestComponent;
    return value && *value >= smallest && *value <= largest ? value : std::nullopt;
}

std::string textOf(const Json& component) {
    return component.is_string() ? component.get<std::string>()
                                 : component.dump(-1, ' ', false, Json::error_handler_t::replace);
}

} // namespace

Runtime::Result<ColorValue> colorValue(const Json& color) {
    static constexpr std::array<const char*, 4> rgb = {"red", "green", "blue", "alpha"};
    static constexpr std::array<const char*, 4> gray = {"white", "white", "white", "alpha"};
    const std::optional<ColorSpace> space = colorSpaceNamed(text(color, "color-space"));
    if (!space)
        return Runtime::Error{.message = "has the unknown colour space " + quotedName(text(color, "color-space"))};
    ColorValue value{.space = *space};
    const auto& names = space == ColorSpace::gray ? gray : rgb;
    for (std::size_t i = 0; i < names.size(); ++i) {
        const Json& component = member(member(color, "components"), names[i]);
        const std::optional<double> number = componentValue(component, names[i] == std::string_view("alpha"));
        if (!number)
            return Runtime::Error{.message = std::string("has no valid colour component ") + quotedName(names[i]) +
                                             (component.is_null() ? "" : ": " + quotedName(textOf(component)))};
        value.components[i] = *number;
    }
    return value;
}

} // namespace SourceBundle
