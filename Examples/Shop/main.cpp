// One page of a tea and coffee shop in the user's language: LANGUAGE=de LC_ALL=de_DE.UTF-8 ./shop
#include <Shop/Shop.h>

#include <cstdint>
#include <cstdio>
#include <initializer_list>
#include <string>

namespace {

namespace Localizable = Shop::ShopStrings::Localizable;
namespace Orders = Shop::ShopStrings::Orders;
namespace Assets = Shop::ShopAsset::Shop;

void show(const std::string& text) {
    std::printf("%s\n", text.c_str());
}

void showTexts() {
    show(Localizable::Home::title() + ": " + Localizable::Home::subtitle());
    show(Localizable::Home::welcome("Ann"));
    show(Localizable::Article::price("Darjeeling", "€12.50")); // the shop, not Lumora, formats its prices
    show(Localizable::Article::weight(1.5));
    show(Localizable::Article::rating(4.6));
    show(Orders::orderIsOnItsWay(4711));
}

// Each language has its own plural forms; Arabic has six.
void showPlurals() {
    for (const std::int64_t count : {0, 1, 2, 5, 11, 100})
        show("  " + Localizable::Cart::articles(count));
    show("  " + Localizable::Cart::packed(12, 1));
    show("  " + Localizable::Article::steep(4));
    show("  " + Orders::arrivesInDays(3));
}

// Shows a colour as it is in light and in dark mode.
void showColor(const char* name, const UIKit::UIColor& color) {
    for (const auto style : {UIKit::UserInterfaceStyle::light, UIKit::UserInterfaceStyle::dark}) {
        UIKit::UITraitCollection::setCurrent({.userInterfaceStyle = style});
        if (const auto rgba = color.rgba())
            std::printf("    %-6s #%02X%02X%02X", name, static_cast<unsigned>(rgba->red * 255 + 0.5),
                        static_cast<unsigned>(rgba->green * 255 + 0.5), static_cast<unsigned>(rgba->blue * 255 + 0.5));
    }
    UIKit::UITraitCollection::setCurrent({});
    std::printf("\n");
}

void showAssets() {
    showColor("copper", Assets::copper.color());
    showColor("ink", Assets::ink.color());
    showColor("paper", Assets::paper.color());
    showColor("sage", Assets::sage.color());
    for (const auto& picture : {Assets::bean, Assets::cart, Assets::cup, Assets::kettle, Assets::leaf, Assets::truck}) {
        const UIKit::UIImage image = picture.image();
        std::printf("  %-8s %g x %g points, %s\n", picture.name().c_str(), image.size().width, image.size().height,
                    image.rgba() ? "decoded" : "damaged");
    }
}

} // namespace

int main() {
    showTexts();
    showPlurals();
    showAssets();
}
