// Tests/AssetCatalog/Sample.h
// A small catalog with one asset of each kind under one name, and one more.
#pragma once

#include "AssetCatalog/internal/Builder.h"
#include "AssetCatalog/internal/Model.h"
#include <string>
#include <vector>

namespace Sample {

using namespace AssetCatalog;

constexpr Fit darkTwice{Appearance::dark, Contrast::any, Direction::any, 2};

inline std::vector<Asset> assets() {
    const auto image = [](std::string catalog, std::string name, bool isTemplate, std::vector<Picture> pictures) {
        return Asset{Kind::image, std::move(catalog), std::move(name), isTemplate, std::move(pictures), {}, {}};
    };
    return {
        image("Images", "send", true, {{darkTwice, Encoding::jpeg, 6, 4, {1, 2, 3}}, {{}, Encoding::png, 3, 2, {9}}}),
        image("Images2", "folder/star_", false, {{{}, Encoding::png, 1, 1, {9}}}),
        {Kind::color,
         "Colors",
         "send",
         false,
         {},
         {{{}, ColorSpace::displayP3, {0.25, -0.5, 1.5, 1}}, {darkTwice, ColorSpace::gray, {1, 1, 1, 0.5}}},
         {}},
        {Kind::data, "Onboarding", "send", false, {}, {}, {{{}, "public.json", {'{', '}'}}}},
    };
}

} // namespace Sample
