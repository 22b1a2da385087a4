#include "AssetCatalog/internal/ColorSpaces.h"

#include <cmath>

namespace AssetCatalog {

namespace {

using Components = std::array<double, 3>;

// Applies `curve` to the magnitude and keeps the sign.
template <class Curve> double mirrored(double component, Curve curve) noexcept {
    return std::copysign(curve(std::abs(component)), component);
}

double linear(double component) noexcept {
    return mirrored(component, [](double c) { return c <= 0.04045 ? c / 12.92 : std::pow((c + 0.055) / 1.055, 2.4); });
}
// The inverse of linear().
double curved(double component) noexcept {
    return mirrored(component,
                    [](double c) { return c <= 0.04045 / 12.92 ? c * 12.92 : 1.055 * std::pow(c, 1 / 2.4) - 0.055; });
}

// Computed from the chromaticities of both spaces' primaries and their common white point (0.3127, 0.3290) with exact
// fractions, rounded once.
constexpr std::array<Components, 3> displayP3ToSrgb = {{
    {1.2249401762805598, -0.22494017628055996, 0},
    {-0.042056954709688163, 1.0420569547096881, 0},
    {-0.019637554590334432, -0.078636045550631889, 1.0982736001409663},
}};

std::array<double, 4> fromDisplayP3(const std::array<double, 4>& color) noexcept {
    const Components from = {linear(color[0]), linear(color[1]), linear(color[2])};
    Components to{};
    for (std::size_t i = 0; i < 3; ++i)
        to[i] =
            curved(displayP3ToSrgb[i][0] * from[0] + displayP3ToSrgb[i][1] * from[1] + displayP3ToSrgb[i][2] * from[2]);
    return {to[0], to[1], to[2], color[3]};
}

} // namespace

std::array<double, 4> toExtendedSrgb(const ColorValue& color) noexcept {
    const auto& c = color.components;
    switch (color.space) {
    case ColorSpace::displayP3:
        return fromDisplayP3(c);
    case ColorSpace::gray: {
        const double gray = curved(mirrored(c[0], [](double white) { return std::pow(white, 2.2); }));
        return {gray, gray, gray, c[3]};
    }
    case ColorSpace::srgb:
    case ColorSpace::extendedSrgb:
        break;
    }
    return c;
}

} // namespace AssetCatalog
