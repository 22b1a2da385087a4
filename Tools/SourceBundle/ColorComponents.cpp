#include "SourceBundle/ColorComponents.h"

#include <array>
#include <charconv>
#include <cmath>
#include <utility>

namespace SourceBundle {

using AssetCatalog::ColorSpace;
using AssetCatalog::ColorValue;

namespace {

// What a component's text says; alpha is a fraction even where it is written "1".
std::optional<double> valueOf(std::string_view text, bool isAlpha) {
    const bool isHex = text.starts_with("0x") || text.starts_with("0X");
    const bool isFraction = !isHex && text.find_first_of(".eE") != std::string_view::npos;
    if (isHex)
        text.remove_prefix(2);
    double value = 0;
    const auto parsed = std::from_chars(text.data(), text.data() + text.size(), value,
                                        isHex ? std::chars_format::hex : std::chars_format::general);
    if (parsed.ec != std::errc() || parsed.ptr != text.data() + text.size() || !std::isfinite(value))
        return std::nullopt;
    return isFraction || (isAlpha && value <= 1) ? value : value / 255;
}

} // namespace

std::optional<ColorSpace> colorSpaceNamed(std::string_view name) {
    static constexpr std::array<std::pair<std::string_view, ColorSpace>, 6> spaces = {
        {{"srgb", ColorSpace::srgb},
         {"", ColorSpace::srgb},
         {"extended-srgb", ColorSpace::extendedSrgb},
         {"display-p3", ColorSpace::displayP3},
         {"gray-gamma-22", ColorSpace::gray},
         {"extended-gray", ColorSpace::gray}}};
    for (const auto& [known, space] : spaces)
        if (known == name)
            return space;
    return std::nullopt;
}

Runtime::Result<ColorValue> colorFrom(ColorSpace space,
                                      const std::function<std::optional<std::string>(const char*)>& component) {
    static constexpr std::array<const char*, 4> rgb = {"red", "green", "blue", "alpha"};
    static constexpr std::array<const char*, 4> gray = {"white", "white", "white", "alpha"};
    const auto& names = space == ColorSpace::gray ? gray : rgb;
    ColorValue color{.fit = {}, .space = space, .components = {}};
    for (std::size_t i = 0; i < names.size(); ++i) {
        const bool isAlpha = i == 3;
        const std::optional<std::string> text = component(names[i]);
        const std::optional<double> value = !text && isAlpha ? 1.0 : text ? valueOf(*text, isAlpha) : std::nullopt;
        if (!value || (isAlpha && !(*value >= 0 && *value <= 1)))
            return Runtime::Error{.message = std::string("has no readable colour component \"") + names[i] + '"' +
                                             (text ? ": \"" + *text + '"' : "")};
        color.components[i] = *value;
    }
    return color;
}

} // namespace SourceBundle
