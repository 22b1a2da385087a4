// Tests/UIKit/SampleBundle.h
// A bundle with a compiled catalog, and traits that are current in a scope.
#pragma once

#include "../Pictures/PngFile.h"
#include "../Support/TemporaryFolder.h"
#include "AssetCatalog/internal/Builder.h"
#include "AssetCatalog/internal/Catalog.h"
#include "Foundation/NSBundle.h"
#include "UIKit/UITraitCollection.h"
#include <algorithm>

namespace Sample {

using namespace AssetCatalog;

inline Fit fit(Appearance appearance, std::uint8_t scale) {
    return {appearance, Contrast::any, Direction::any, scale};
}

inline Picture picture(const Fit& fit, std::uint32_t side, std::uint8_t red) {
    const std::vector<std::uint8_t> bytes = PngFile::plain(side, side, red, 0, 0, 255);
    const double points = side / static_cast<double>(std::max<int>(fit.scale, 1));
    return {.fit = fit,
            .width = side,
            .height = side,
            .points = {points, points},
            .bytes = shared({bytes.begin(), bytes.end()})};
}

// Images:  "send"     at 1x and 3x for any appearance, at 2x for dark
//          "star_"    at any scale, a template
//          "sign"     3 pixels wide with insets, 5 pixels wide in Russian
//          "broken"   half a file
//          "liar"     the catalog says another width than the file
// Colours: "ink"      for any appearance, for dark, for dark with high contrast
//          "flag"     for German, for Russian
// Data:    "regions"
inline std::vector<Asset> assets() {
    const auto image = [](const char* name, std::vector<Picture> pictures) {
        const bool isTemplate = std::string_view(name) == "star_";
        return Asset{.kind = Kind::image,
                     .catalog = "Images",
                     .name = name,
                     .rendering = isTemplate ? Rendering::asTemplate : Rendering::automatic,
                     .pictures = std::move(pictures)};
    };
    const auto color = [](const char* name, std::vector<Color> colors) {
        return Asset{.kind = Kind::color, .catalog = "Colors", .name = name, .colors = std::move(colors)};
    };
    Picture broken = picture({}, 3, 1);
    broken.bytes = shared(broken.bytes->substr(0, broken.bytes->size() / 2));
    Picture framed = picture({}, 3, 3);
    framed.resizing = Resizing::tile;
    framed.capInsets = {1, 2, 3, 4};
    framed.alignmentInsets = {0, 0.5, 0, 0};
    Picture russian = picture({}, 5, 5);
    russian.language = "ru";
    Picture liar = picture({}, 3, 2);
    liar.width = 4;
    return {
        image("send", {picture(fit(Appearance::any, 1), 10, 11), picture(fit(Appearance::any, 3), 30, 33),
                       picture(fit(Appearance::dark, 2), 20, 22)}),
        image("star_", {picture({}, 7, 7)}),
        image("broken", {broken}),
        image("liar", {liar}),
        image("sign", {framed, russian}),
        color("ink", {{{}, "", {ColorSpace::srgb, {0.125, 0.25, 0.5, 1}}},
                      {fit(Appearance::dark, 0), "", {ColorSpace::srgb, {0.875, 0.75, 0.5, 1}}},
                      {{Appearance::dark, Contrast::high, Direction::any, 0}, "", {ColorSpace::srgb, {1, 1, 1, 1}}}}),
        color("flag", {{{}, "de", {ColorSpace::srgb, {1, 1, 0, 1}}}, {{}, "ru", {ColorSpace::srgb, {1, 0, 0, 1}}}}),
        {.kind = Kind::data,
         .catalog = "Onboarding",
         .name = "regions",
         .data = {{.fit = {}, .typeIdentifier = "public.json", .bytes = shared("{}")}}},
    };
}

// All tests share this bundle, because bundles and catalogs are never closed.
inline const Foundation::NSBundle& bundle() {
    static const Foundation::NSBundle& made = []() -> const Foundation::NSBundle& {
        static const Support::TemporaryFolder folder;
        folder.write(fileName, build(assets())->bytes());
        return Foundation::NSBundle::bundleWithPath(folder.path());
    }();
    return made;
}

// Makes traits the current ones until the end of the scope.
class TraitsScope {
public:
    explicit TraitsScope(const UIKit::UITraitCollection& traits) { UIKit::UITraitCollection::setCurrent(traits); }
    TraitsScope(const TraitsScope&) = delete;
    TraitsScope& operator=(const TraitsScope&) = delete;
    ~TraitsScope() { UIKit::UITraitCollection::setCurrent(before_); }

private:
    UIKit::UITraitCollection before_ = UIKit::UITraitCollection::current();
};
inline constexpr UIKit::UITraitCollection dark{.userInterfaceStyle = UIKit::UserInterfaceStyle::dark};

} // namespace Sample
