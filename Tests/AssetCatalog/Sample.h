// Tests/AssetCatalog/Sample.h
// A small catalog with one asset of each kind under the same name, and one more image.
#pragma once

#include "AssetCatalog/internal/Builder.h"
#include "AssetCatalog/internal/Model.h"
#include <string>
#include <vector>

namespace Sample {

using namespace AssetCatalog;

constexpr Fit darkTwice{Appearance::dark, Contrast::any, Direction::any, 2};

inline std::vector<Asset> assets() {
    const auto image = [](std::string catalog, std::string name, Rendering rendering, std::vector<Picture> pictures) {
        return Asset{Kind::image, std::move(catalog), std::move(name), rendering, std::move(pictures), {}, {}};
    };
    const auto picture = [](Fit fit, std::uint32_t width, std::uint32_t height, std::string bytes) {
        return Picture{.fit = fit,
                       .width = width,
                       .height = height,
                       .points = {width / 2.0, height / 2.0},
                       .bytes = shared(std::move(bytes))};
    };
    Picture framed = picture({}, 1, 1, "\x09");
    framed.resizing = Resizing::tile;
    framed.capInsets = {1, 2, 3, 4};
    framed.alignmentInsets = {0.5, 0, -1, 0};
    Picture german = framed;
    german.language = "de";
    return {
        image("Images", "send", Rendering::asTemplate, {picture(darkTwice, 6, 4, "\1\2\3"), picture({}, 3, 2, "\x09")}),
        image("Images2", "folder/star_", Rendering::original, {framed, german}),
        {Kind::color,
         "Colors",
         "send",
         Rendering::automatic,
         {},
         {{{}, "", {ColorSpace::displayP3, {0.25, -0.5, 1.5, 1}}}, {darkTwice, "", {ColorSpace::gray, {1, 1, 1, 0.5}}}},
         {}},
        {Kind::data, "Onboarding", "send", Rendering::automatic, {}, {}, {{{}, "fr", "public.json", shared("{}")}}},
    };
}

} // namespace Sample
