#include "AssetCatalog/internal/ColorSpaces.h"

#include <gtest/gtest.h>

namespace {

using namespace AssetCatalog;

// The expected values were not computed by the tested code; the matrix from Display P3 to sRGB was calculated from the
// chromaticities with exact fractions.
TEST(ColorSpaces, BecomeExtendedSrgb) {
    struct Case {
        int line;
        ColorSpace space;
        std::array<double, 4> from;
        std::array<double, 3> to;
    };
    const Case cases[] = {
        {__LINE__, ColorSpace::srgb, {0.1, 0.2, 0.3, 0.5}, {0.1, 0.2, 0.3}},
        {__LINE__, ColorSpace::extendedSrgb, {-0.5, 1.5, 0.3, 0.5}, {-0.5, 1.5, 0.3}},
        {__LINE__, ColorSpace::displayP3, {1, 0, 0, 0.5}, {1.093066362, -0.226741974, -0.150134581}},
        {__LINE__, ColorSpace::displayP3, {0, 1, 0, 0.5}, {-0.511604983, 1.018265658, -0.310674621}},
        {__LINE__, ColorSpace::displayP3, {1, 0.5, 0.25, 0.5}, {1.074044179, 0.462532911, 0.149127460}},
        {__LINE__, ColorSpace::displayP3, {0.02, 0.9, -0.3, 0.5}, {-0.455603285, 0.916502196, -0.413306560}},
        {__LINE__, ColorSpace::displayP3, {1, 1, 1, 0.5}, {1, 1, 1}},
        {__LINE__, ColorSpace::gray, {0.5, 0.5, 0.5, 0.5}, {0.503866782, 0.503866782, 0.503866782}},
        {__LINE__, ColorSpace::gray, {0.02, 0.02, 0.02, 0.5}, {0.002363353, 0.002363353, 0.002363353}},
        {__LINE__, ColorSpace::gray, {-0.25, -0.25, -0.25, 0.5}, {-0.241049365, -0.241049365, -0.241049365}},
    };
    for (const Case& c : cases) {
        SCOPED_TRACE(c.line);
        const std::array<double, 4> got = toExtendedSrgb({c.space, c.from});
        for (std::size_t i = 0; i < 3; ++i)
            EXPECT_NEAR(got[i], c.to[i], 1e-8);
        EXPECT_EQ(got[3], 0.5);
    }
}

} // namespace
