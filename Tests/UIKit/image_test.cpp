#include "UIKit/UIKit.h"

#include "Foundation/Host.h"
#include "SampleBundle.h"
#include "SwiftUI/SwiftUI.h"
#include <gtest/gtest.h>
#include <thread>

namespace {

using namespace UIKit;
using Sample::bundle;

TEST(UIImage, FollowsTheCurrentTraits) {
    const UIImage send = UIImage::imageNamed("send", bundle()).value();
    const UIImage darkSend = UIImage::imageNamed("send", bundle(), &Sample::dark).value();
    struct Case {
        int line;
        UITraitCollection traits;
        unsigned pixels, darkPixels; // the side length, which identifies the variant
        double scale;
    };
    const Case cases[] = {
        {__LINE__, {}, 10, 20, 1},
        {__LINE__, {.displayScale = 2}, 30, 20, 3},
        {__LINE__, {.displayScale = 2.5}, 30, 20, 3},
        {__LINE__, {.userInterfaceStyle = UserInterfaceStyle::dark, .displayScale = 1}, 20, 20, 2},
    };
    for (const Case& c : cases) {
        SCOPED_TRACE(c.line);
        const Sample::TraitsScope scope(c.traits);
        EXPECT_EQ(send.scale(), c.scale);
        EXPECT_EQ(send.pixelWidth(), c.pixels);
        EXPECT_EQ(send.pixelHeight(), c.pixels);
        EXPECT_EQ(send.size(), (Size{10, 10}));
        const auto rgba = send.rgba();
        ASSERT_TRUE(rgba);
        EXPECT_EQ(rgba->width, c.pixels);
        EXPECT_EQ(rgba->pixels[0], c.pixels / 10 * 11); // the variant's red
        EXPECT_EQ(darkSend.pixelWidth(), c.darkPixels);
    }
}

TEST(UIImage, IdentityAndAbsence) {
    const UIImage star = UIImage::imageNamed("star_", bundle()).value();
    EXPECT_EQ(star, UIImage::imageNamedWithConfiguration("star_", bundle()));
    EXPECT_EQ(star.rgba(), UIImage::imageNamed("star_", bundle())->rgba()); // the same object
    EXPECT_NE(star, UIImage::imageNamed("send", bundle()));
    EXPECT_NE(star, UIImage::imageNamed("star_", bundle(), &Sample::dark));
    EXPECT_EQ(star.name(), "star_");
    EXPECT_TRUE(star.isTemplate());
    EXPECT_EQ(star.scale(), 1);
    EXPECT_EQ(star.size(), (Size{7, 7}));

    EXPECT_FALSE(UIImage::imageNamed("star", bundle()));
    EXPECT_FALSE(UIImage::imageNamed("ink", bundle())); // a colour
    EXPECT_FALSE(UIImage::imageNamed("send", Foundation::NSBundle::bundleWithPath("/nowhere")));
}

TEST(UIImage, HasTheInsetsOfItsVariant) {
    const UIImage sign = UIImage::imageNamed("sign", bundle()).value();
    EXPECT_EQ(sign.capInsets(), (EdgeInsets{1, 2, 3, 4}));
    EXPECT_EQ(sign.alignmentRectInsets(), (EdgeInsets{0, 0.5, 0, 0}));
    EXPECT_EQ(sign.resizingMode(), ResizingMode::tile);
    EXPECT_EQ(sign.renderingMode(), RenderingMode::automatic);
    EXPECT_EQ(UIImage::imageNamed("star_", bundle())->renderingMode(), RenderingMode::alwaysTemplate);
}

// In a bundle without texts, pictures and colours follow the user's languages.
TEST(UIImage, FollowsTheCurrentLanguage) {
    const UIImage sign = UIImage::imageNamed("sign", bundle()).value();
    const UIColor flag = UIColor::colorNamed("flag", bundle()).value();
    Foundation::Host::setPreferredLanguages({"ru-RU", "de"});
    EXPECT_EQ(sign.pixelWidth(), 5U);
    EXPECT_EQ(flag.rgba(), (RGBA{1, 0, 0, 1}));
    Foundation::Host::setPreferredLanguages({"de"});
    EXPECT_EQ(sign.pixelWidth(), 3U);
    EXPECT_EQ(flag.rgba(), (RGBA{1, 1, 0, 1}));
    Foundation::Host::reset();
}

// In a bundle with texts, pictures follow the language of the texts.
TEST(UIImage, FollowsTheLanguageOfTheTexts) {
    const Support::TemporaryFolder folder;
    folder.write(AssetCatalog::fileName, AssetCatalog::build(Sample::assets())->bytes());
    folder.write("ru.lproj/Localizable.strings", "a = b;");
    folder.write("en.lproj/Localizable.strings", "a = b;");
    const UIImage sign = UIImage::imageNamed("sign", Foundation::NSBundle::bundleWithPath(folder.path())).value();
    Foundation::Host::setPreferredLanguages({"de", "ru"});
    EXPECT_EQ(sign.pixelWidth(), 5U);
    Foundation::Host::setPreferredLanguages({"en", "ru"});
    EXPECT_EQ(sign.pixelWidth(), 3U);
    Foundation::Host::reset();
}

TEST(UIImage, DamagedPictureHasASizeButNoPixels) {
    for (const char* name : {"broken", "liar"}) {
        const UIImage image = UIImage::imageNamed(name, bundle()).value();
        EXPECT_EQ(image.pixelHeight(), 3U);
        EXPECT_FALSE(image.rgba()) << name;
        EXPECT_FALSE(image.rgba()) << name; // the second call fails, too
    }
}

TEST(Bundle, DamagedCatalogHasNoAssets) {
    const Support::TemporaryFolder folder;
    const std::string bytes = AssetCatalog::build(Sample::assets())->bytes();
    folder.write(AssetCatalog::fileName, std::string_view(bytes).substr(0, bytes.size() - 1));
    const auto& damaged = Foundation::NSBundle::bundleWithPath(folder.path());
    EXPECT_FALSE(UIImage::imageNamed("send", damaged));
    EXPECT_FALSE(UIColor::colorNamed("ink", damaged));
    EXPECT_FALSE(NSDataAsset::assetWithName("regions", damaged));
}

TEST(Bundle, ManyThreadsOpenOneCatalog) {
    const Support::TemporaryFolder folder;
    folder.write(AssetCatalog::fileName, AssetCatalog::build(Sample::assets())->bytes());
    const auto& fresh = Foundation::NSBundle::bundleWithPath(folder.path());
    std::array<std::optional<UIImage>, 8> images;
    std::array<std::shared_ptr<const Pictures::Bitmap>, 8> pixels;
    {
        std::vector<std::jthread> threads;
        for (std::size_t i = 0; i < images.size(); ++i)
            threads.emplace_back([&, i] {
                images[i] = UIImage::imageNamed("send", fresh);
                pixels[i] = images[i]->rgba();
            });
    }
    for (std::size_t i = 1; i < images.size(); ++i) {
        EXPECT_EQ(images[i], images[0]);
        EXPECT_EQ(pixels[i], pixels[0]);
    }
}

TEST(NSDataAsset, ShowsTheCatalogsBytes) {
    const NSDataAsset regions = NSDataAsset::assetWithName("regions", bundle()).value();
    EXPECT_EQ(regions.name(), "regions");
    EXPECT_EQ(regions.typeIdentifier(), "public.json");
    EXPECT_EQ(std::string(regions.data().begin(), regions.data().end()), "{}");
    EXPECT_FALSE(NSDataAsset::assetWithName("send", bundle()));
}

// An empty file has the same offset in the catalog as the file after it.
TEST(NSDataAsset, TellsEmptyFilesFromTheNext) {
    const Support::TemporaryFolder folder;
    std::vector<AssetCatalog::Asset> assets;
    for (const std::string text : {"", "a", "b", "c"})
        assets.push_back({.kind = AssetCatalog::Kind::data,
                          .catalog = "C",
                          .name = "text " + text,
                          .data = {{.fit = {}, .bytes = AssetCatalog::shared(text)}}});
    folder.write(AssetCatalog::fileName, AssetCatalog::build(assets)->bytes());
    const auto& fresh = Foundation::NSBundle::bundleWithPath(folder.path());
    for (const std::string text : {"", "a", "b", "c"}) {
        const auto data = NSDataAsset::assetWithName("text " + text, fresh)->data();
        EXPECT_EQ(std::string(data.begin(), data.end()), text);
    }
}

TEST(SwiftUI, ViewsNameAnAssetAndResolveLater) {
    using SwiftUI::Color, SwiftUI::Image, SwiftUI::Text;
    const Image send("send", bundle());
    const UITraitCollection sharp{.displayScale = 3};
    EXPECT_EQ(send.resolve(sharp)->pixelWidth(), 30U);
    EXPECT_FALSE(Image("none", bundle()).resolve(sharp));
    EXPECT_NE(send, Image("send", bundle(), Text("Send it")));
    EXPECT_NE(send, Image::decorative("send", bundle()));
    EXPECT_EQ(send, Image("send", bundle()));

    const Color ink("ink", bundle());
    EXPECT_EQ(ink.resolve(Sample::dark)->rgba(), (RGBA{0.875, 0.75, 0.5, 1}));
    EXPECT_FALSE(Color("none", bundle()).resolve({}));
    EXPECT_EQ(ink, Color("ink", bundle()));
    const UIColor red(2, 0, 0, 1);
    EXPECT_EQ(Color(red).resolve({}), red);
    EXPECT_NE(ink, Color(red));
}

TEST(SwiftUI, UnspecifiedTraitsAreTheCurrentOnes) {
    const Sample::TraitsScope scope({.userInterfaceStyle = UserInterfaceStyle::dark, .displayScale = 1});
    const UITraitCollection contrast{.accessibilityContrast = AccessibilityContrast::high};
    const UIColor ink = UIColor::colorNamed("ink", bundle()).value();
    const RGBA dark{0.875, 0.75, 0.5, 1}, white{1, 1, 1, 1};
    EXPECT_EQ(SwiftUI::Image("send", bundle()).resolve(contrast)->pixelWidth(), 20U);
    EXPECT_EQ(SwiftUI::Color("ink", bundle()).resolve(contrast)->rgba(), white);
    EXPECT_EQ(SwiftUI::Color(ink).resolve({})->rgba(), dark);
    EXPECT_EQ(ink.resolved(contrast).rgba(), white);
    EXPECT_EQ(ink.resolved({.userInterfaceStyle = UserInterfaceStyle::light}).rgba(), (RGBA{0.125, 0.25, 0.5, 1}));
}

} // namespace
