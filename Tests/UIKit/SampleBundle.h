// Tests/UIKit/SampleBundle.h
// A bundle with a compiled catalog of its own, and traits that are put back.
#pragma once

#include "../Pictures/PngFile.h"
#include "../Support/TemporaryFolder.h"
#include "AssetCatalog/internal/Builder.h"
#include "AssetCatalog/internal/Catalog.h"
#include "Foundation/NSBundle.h"
#include "UIKit/UITraitCollection.h"

namespace Sample {

using namespace AssetCatalog;

inline Fit fit(Appearance appearance, std::uint8_t scale) {
    return {appearance, Contrast::any, Direction::any, scale};
}

inline Picture picture(const Fit& fit, std::uint32_t side, std::uint8_t red) {
    return {fit, Encoding::png, side, side, PngFile::plain(side, side, red, 0, 0, 255)};
}

// Images "send" (light at 1x and 3x, dark at 2x), "star_" (no scale, template) and the damaged "broken" and "liar";
// colours "ink" (dark on light, light on dark), "wide" and "grey"; data "regions".
inline std::vector<Asset> assets() {
    const auto image = [](const char* name, std::vector<Picture> pictures) {
        return Asset{Kind::image, "Images", name, std::string_view(name) == "star_", std::move(pictures), {}, {}};
    };
    const auto color = [](const char* name, std::vector<ColorValue> colors) {
        return Asset{Kind::color, "Colors", name, false, {}, std::move(colors), {}};
    };
    Picture broken = picture({}, 3, 1);
    broken.bytes.resize(broken.bytes.size() / 2);
    Picture liar = picture({}, 3, 2);
    liar.width = 4;
    return {
        image("send", {picture(fit(Appearance::any, 1), 10, 11), picture(fit(Appearance::any, 3), 30, 33),
                       picture(fit(Appearance::dark, 2), 20, 22)}),
        image("star_", {picture({}, 7, 7)}),
        image("broken", {broken}),
        image("liar", {liar}),
        color("ink", {{{}, ColorSpace::srgb, {0.125, 0.25, 0.5, 1}},
                      {fit(Appearance::dark, 0), ColorSpace::srgb, {0.875, 0.75, 0.5, 1}},
                      {{Appearance::dark, Contrast::high, Direction::any, 0}, ColorSpace::srgb, {1, 1, 1, 1}}}),
        color("wide", {{{}, ColorSpace::displayP3, {1, 0.5, 0.25, 0.5}}}),
        color("grey", {{{}, ColorSpace::gray, {0.5, 0.5, 0.5, 1}}}),
        {Kind::data, "Onboarding", "regions", false, {}, {}, {{{}, "public.json", {'{', '}'}}}},
    };
}

// The same bundle in every test of the process: bundles and catalogs are never closed.
inline const Foundation::NSBundle& bundle() {
    static const Foundation::NSBundle& made = [&]() -> const Foundation::NSBundle& {
        static const Support::TemporaryFolder folder;
        folder.write(fileName, *build(assets()));
        return Foundation::NSBundle::bundleWithPath(folder.path());
    }();
    return made;
}

class Traits {
public:
    explicit Traits(const UIKit::UITraitCollection& traits) { UIKit::UITraitCollection::setCurrent(traits); }
    Traits(const Traits&) = delete;
    Traits& operator=(const Traits&) = delete;
    ~Traits() { UIKit::UITraitCollection::setCurrent({}); }
};
inline constexpr UIKit::UITraitCollection dark{.userInterfaceStyle = UIKit::UserInterfaceStyle::dark};

} // namespace Sample
