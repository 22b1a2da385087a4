#include "demo_assets.h"

#include <Lumora/Lumora.h>
#include <algorithm>
#include <cmath>
#include <cstddef>
#include <cstdint>
#include <cstdio>
#include <png.h>
#include <string>
#include <unistd.h>
#include <vector>

namespace {

using UIKit::RGBA;

constexpr const char* regions[] = {"arab", "asia", "europe", "latina", "usa"};

// Pictures side by side, in rows, on white: RGBA, four bytes per pixel.
class Sheet {
public:
    static constexpr unsigned cell = 240;              // width and height in pixels
    static constexpr unsigned largest = cell - 2 * 10; // width or height of a picture; 10 is the margin on each side

    Sheet(unsigned columns, unsigned rows)
        : width_(columns * cell), height_(rows * cell), pixels_(std::size_t{4} * width_ * height_, 0xFF) {}

    // Draws the picture into a cell, shrunk if it is too large.
    void draw(const Pictures::Bitmap& picture, unsigned column, unsigned row) {
        const double shrink = std::max({1.0, picture.width / double{largest}, picture.height / double{largest}});
        const auto width = static_cast<unsigned>(picture.width / shrink);
        const auto height = static_cast<unsigned>(picture.height / shrink);
        for (unsigned y = 0; y < height; ++y)
            for (unsigned x = 0; x < width; ++x) {
                const std::size_t from =
                    4 * (static_cast<std::size_t>(y * shrink) * picture.width + static_cast<std::size_t>(x * shrink));
                blend(&picture.pixels[from], column * cell + (cell - width) / 2 + x,
                      row * cell + (cell - height) / 2 + y);
            }
    }

    bool write(const char* file) const {
        png_image image{};
        image.version = PNG_IMAGE_VERSION;
        image.width = width_;
        image.height = height_;
        image.format = PNG_FORMAT_RGBA;
        return png_image_write_to_file(&image, file, 0, pixels_.data(), 0, nullptr) != 0;
    }

private:
    void blend(const std::uint8_t* source, unsigned x, unsigned y) {
        std::uint8_t* target = &pixels_[4 * (std::size_t{y} * width_ + x)];
        for (int i = 0; i < 3; ++i)
            target[i] = static_cast<std::uint8_t>((source[i] * source[3] + target[i] * (255 - source[3])) / 255);
    }

    unsigned width_;
    unsigned height_;
    std::vector<std::uint8_t> pixels_;
};

int byte(double component) {
    return static_cast<int>(std::lround(std::clamp(component, 0.0, 1.0) * 255));
}

// Prints a block of the colour on a terminal, otherwise its hexadecimal notation.
void show(const RGBA& color) {
    const int red = byte(color.red);
    const int green = byte(color.green);
    const int blue = byte(color.blue);
    if (::isatty(STDOUT_FILENO) == 1)
        std::printf("\033[48;2;%d;%d;%dm   \033[0m", red, green, blue);
    else
        std::printf("#%02x%02x%02x ", red, green, blue);
}

} // namespace

bool showAssets(const char* file) {
    using namespace Lumora;
    std::printf("\nProgress, from nothing to all\n");
    for (int tenth = 0; tenth <= 10; ++tenth)
        show(UIColor::colorForProgress(tenth / 10.0).rgba().value_or(RGBA{}));
    std::printf("\n\nPictures chosen by region and sex\n");

    UIKit::UITraitCollection::setCurrent({.displayScale = 2});
    Sheet sheet(std::size(regions), 6); // a column for each region, a row for each picture below
    unsigned column = 0;
    constexpr bool male = true, female = false;
    for (const char* region : regions) {
        const UIKit::UIImage pictures[] = {
            UIImage::assetOnboardingStep1(region),       UIImage::assetSubscriptionWoman(region),
            UIImage::assetSubscriptionMan(region),       UIImage::assetGym(male, region),
            UIImage::assetDefaultCourse(female, region), UIImage::assetHome(female, region),
        };
        std::printf("%-8s", region);
        unsigned row = 0;
        for (const UIKit::UIImage& picture : pictures) {
            std::printf(" %s", std::string(picture.name()).c_str());
            if (const auto pixels = picture.rgba())
                sheet.draw(*pixels, column, row);
            ++row;
        }
        std::printf("\n");
        ++column;
    }
    if (!sheet.write(file))
        return false;
    std::printf("All of them are in %s\n", file);
    return true;
}
