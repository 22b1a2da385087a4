#include "SourceBundle/SystemColors.h"

#include <algorithm>
#include <array>

namespace SourceBundle {

namespace {

using Components = std::array<double, 4>; // red, green and blue from 0 to 255, alpha from 0 to 1

struct NamedColor {
    std::string_view name;
    Components light;
    Components dark;
};

constexpr NamedColor colors[] = {
    {"black", {0, 0, 0, 1}, {0, 0, 0, 1}},
    {"blue", {0, 0, 255, 1}, {0, 0, 255, 1}},
    {"brown", {153, 102, 51, 1}, {153, 102, 51, 1}},
    {"clear", {0, 0, 0, 0}, {0, 0, 0, 0}},
    {"controlAccent", {0, 122, 255, 1}, {10, 132, 255, 1}},
    {"controlBackground", {255, 255, 255, 1}, {30, 30, 30, 1}},
    {"controlText", {0, 0, 0, 0.85}, {255, 255, 255, 0.85}},
    {"cyan", {0, 255, 255, 1}, {0, 255, 255, 1}},
    {"darkGray", {85, 85, 85, 1}, {85, 85, 85, 1}},
    {"darkText", {0, 0, 0, 1}, {0, 0, 0, 1}},
    {"gray", {128, 128, 128, 1}, {128, 128, 128, 1}},
    {"green", {0, 255, 0, 1}, {0, 255, 0, 1}},
    {"label", {0, 0, 0, 1}, {255, 255, 255, 1}},
    {"lightGray", {170, 170, 170, 1}, {170, 170, 170, 1}},
    {"lightText", {255, 255, 255, 0.6}, {255, 255, 255, 0.6}},
    {"link", {0, 122, 255, 1}, {9, 132, 255, 1}},
    {"magenta", {255, 0, 255, 1}, {255, 0, 255, 1}},
    {"opaqueSeparator", {198, 198, 200, 1}, {56, 56, 58, 1}},
    {"orange", {255, 128, 0, 1}, {255, 128, 0, 1}},
    {"placeholderText", {60, 60, 67, 0.3}, {235, 235, 245, 0.3}},
    {"purple", {128, 0, 128, 1}, {128, 0, 128, 1}},
    {"quaternaryLabel", {60, 60, 67, 0.18}, {235, 235, 245, 0.16}},
    {"quaternarySystemFill", {116, 116, 128, 0.08}, {118, 118, 128, 0.18}},
    {"red", {255, 0, 0, 1}, {255, 0, 0, 1}},
    {"secondaryLabel", {60, 60, 67, 0.6}, {235, 235, 245, 0.6}},
    {"secondarySystemBackground", {242, 242, 247, 1}, {28, 28, 30, 1}},
    {"secondarySystemFill", {120, 120, 128, 0.16}, {120, 120, 128, 0.32}},
    {"secondarySystemGroupedBackground", {255, 255, 255, 1}, {28, 28, 30, 1}},
    {"separator", {60, 60, 67, 0.29}, {84, 84, 88, 0.6}},
    {"systemBackground", {255, 255, 255, 1}, {0, 0, 0, 1}},
    {"systemBlue", {0, 122, 255, 1}, {10, 132, 255, 1}},
    {"systemBrown", {162, 132, 94, 1}, {172, 142, 104, 1}},
    {"systemCyan", {50, 173, 230, 1}, {100, 210, 255, 1}},
    {"systemFill", {120, 120, 128, 0.2}, {120, 120, 128, 0.36}},
    {"systemGray", {142, 142, 147, 1}, {142, 142, 147, 1}},
    {"systemGray2", {174, 174, 178, 1}, {99, 99, 102, 1}},
    {"systemGray3", {199, 199, 204, 1}, {72, 72, 74, 1}},
    {"systemGray4", {209, 209, 214, 1}, {58, 58, 60, 1}},
    {"systemGray5", {229, 229, 234, 1}, {44, 44, 46, 1}},
    {"systemGray6", {242, 242, 247, 1}, {28, 28, 30, 1}},
    {"systemGreen", {52, 199, 89, 1}, {48, 209, 88, 1}},
    {"systemGroupedBackground", {242, 242, 247, 1}, {0, 0, 0, 1}},
    {"systemIndigo", {88, 86, 214, 1}, {94, 92, 230, 1}},
    {"systemMint", {0, 199, 190, 1}, {99, 230, 226, 1}},
    {"systemOrange", {255, 149, 0, 1}, {255, 159, 10, 1}},
    {"systemPink", {255, 45, 85, 1}, {255, 55, 95, 1}},
    {"systemPurple", {175, 82, 222, 1}, {191, 90, 242, 1}},
    {"systemRed", {255, 59, 48, 1}, {255, 69, 58, 1}},
    {"systemTeal", {48, 176, 199, 1}, {64, 200, 224, 1}},
    {"systemYellow", {255, 204, 0, 1}, {255, 214, 10, 1}},
    {"tertiaryLabel", {60, 60, 67, 0.3}, {235, 235, 245, 0.3}},
    {"tertiarySystemBackground", {255, 255, 255, 1}, {44, 44, 46, 1}},
    {"tertiarySystemFill", {118, 118, 128, 0.12}, {118, 118, 128, 0.24}},
    {"tertiarySystemGroupedBackground", {242, 242, 247, 1}, {44, 44, 46, 1}},
    {"text", {0, 0, 0, 1}, {255, 255, 255, 1}},
    {"textBackground", {255, 255, 255, 1}, {30, 30, 30, 1}},
    {"tint", {0, 122, 255, 1}, {10, 132, 255, 1}},
    {"white", {255, 255, 255, 1}, {255, 255, 255, 1}},
    {"windowBackground", {236, 236, 236, 1}, {50, 50, 50, 1}},
    {"yellow", {255, 255, 0, 1}, {255, 255, 0, 1}},
};

AssetCatalog::ColorValue valueOf(const Components& components) {
    const auto& [red, green, blue, alpha] = components;
    return {AssetCatalog::ColorSpace::srgb, {red / 255, green / 255, blue / 255, alpha}};
}

} // namespace

std::optional<SystemColor> systemColor(std::string_view name) {
    constexpr std::string_view ending = "Color";
    if (name.ends_with(ending))
        name.remove_suffix(ending.size());
    const auto* const found = std::ranges::find(colors, name, &NamedColor::name);
    if (found == std::end(colors))
        return std::nullopt;
    return SystemColor{valueOf(found->light), valueOf(found->dark)};
}

} // namespace SourceBundle
