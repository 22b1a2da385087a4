#include "AssetCatalog/internal/Fit.h"

#include <algorithm>
#include <gtest/gtest.h>
#include <string>
#include <vector>

namespace {

using namespace AssetCatalog;

// Four characters: direction (l, r), appearance (l, d), contrast (h), scale; '-' is any.
Fit fit(const char* text) {
    Fit fit;
    fit.direction = text[0] == 'l' ? Direction::leftToRight : text[0] == 'r' ? Direction::rightToLeft : Direction::any;
    fit.appearance = text[1] == 'l' ? Appearance::light : text[1] == 'd' ? Appearance::dark : Appearance::any;
    fit.contrast = text[2] == 'h' ? Contrast::high : Contrast::any;
    fit.scale = text[3] == '-' ? std::uint8_t{0} : static_cast<std::uint8_t>(text[3] - '0');
    return fit;
}

struct Case {
    int line;
    const char* wanted;
    std::vector<const char*> offered;
    const char* best;
};

TEST(Fit, BestVariant) {
    const Case cases[] = {
        // Scale: the wanted one, any, the next larger, the largest of the smaller ones.
        {__LINE__, "---2", {"---1", "---2", "---3", "----"}, "---2"},
        {__LINE__, "---2", {"---1", "---3", "----"}, "----"},
        {__LINE__, "---1", {"---3", "---2"}, "---2"},
        {__LINE__, "---2", {"---1", "---3"}, "---3"},
        {__LINE__, "---4", {"---1", "---3", "---2"}, "---3"},
        // Appearance, direction, contrast: the wanted one, any, another; if none is wanted, the more common one.
        {__LINE__, "-d--", {"----", "-l--", "-d--"}, "-d--"},
        {__LINE__, "-d--", {"-l--", "----"}, "----"},
        {__LINE__, "-l--", {"-d--", "----"}, "----"},
        {__LINE__, "----", {"-d--", "-l--"}, "-l--"},
        {__LINE__, "r---", {"l---", "----", "r---"}, "r---"},
        {__LINE__, "r---", {"l---", "----"}, "----"},
        {__LINE__, "----", {"r---", "l---"}, "l---"},
        {__LINE__, "--h-", {"----", "--h-"}, "--h-"},
        {__LINE__, "----", {"--h-", "----"}, "----"},
        // Direction before appearance before contrast before scale.
        {__LINE__, "rdh3", {"-dh3", "r--1"}, "r--1"},
        {__LINE__, "-dh3", {"--h3", "-d-1"}, "-d-1"},
        {__LINE__, "--h3", {"---3", "--h1"}, "--h1"},
        // A mismatch is better than nothing.
        {__LINE__, "rdh9", {"ll-1"}, "ll-1"},
    };
    for (const Case& c : cases) {
        SCOPED_TRACE(c.line);
        const auto distanceOf = [&](const char* offered) { return distance(fit(offered), fit(c.wanted)); };
        EXPECT_STREQ(*std::ranges::min_element(c.offered, {}, distanceOf), c.best);
    }
}

TEST(Fit, BestLanguage) {
    const struct {
        int line;
        std::vector<std::string> wanted, offered;
        const char* best;
    } cases[] = {
        {__LINE__, {"pt-BR"}, {"", "pt", "pt-PT", "pt-BR"}, "pt-BR"},
        {__LINE__, {"pt-BR"}, {"", "pt", "pt-PT"}, "pt"},
        {__LINE__, {"pt-BR"}, {"p", "pt-B", "pt-BR-x", ""}, ""},
        {__LINE__, {"pt-BR"}, {"de", "pt-PT"}, "de"}, // none matches: the first
        {__LINE__, {"zh-Hans-CN"}, {"zh", "zh-Hans", ""}, "zh-Hans"},
        {__LINE__, {"fr", "de"}, {"", "de"}, "de"},
        {__LINE__, {"fr-CA", "de"}, {"de", "fr"}, "fr"},
        {__LINE__, {}, {"de", ""}, ""},
    };
    for (const auto& c : cases) {
        const auto distanceOf = [&](const std::string& offered) { return languageDistance(offered, c.wanted); };
        EXPECT_EQ(*std::ranges::min_element(c.offered, {}, distanceOf), c.best) << "line " << c.line;
    }
}

} // namespace
