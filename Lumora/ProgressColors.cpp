#include "Lumora/ProgressColors.h"

#include "Lumora/LumoraAsset.h"

namespace Lumora {

UIKit::UIColor UIColor::watchProgress(double progress, const UIKit::UIColor& base) {
    const std::optional<UIKit::RGBA> end = base.rgba();
    if (!end)
        return base;
    // The comparisons are written so that NaN reaches the components.
    double done = progress > 1.0 ? 1.0 : progress;
    done = done <= 0.0 ? 0.0 : done;
    const double missing = 1.0 - done;
    const double red = missing + missing <= end->red ? end->red : missing + missing;
    const double green = end->green < done + done ? end->green : done + done;
    return {red, green, done * end->blue, 1.0};
}

UIKit::UIColor UIColor::color(const UIKit::UIColor& base, double progress) {
    return watchProgress(progress, base);
}

UIKit::UIColor UIColor::colorForProgress(double progress) {
    return watchProgress(progress, LumoraAsset::Colors::progressGreen.color());
}

SwiftUI::Color Color::colorForProgress(double progress) {
    return SwiftUI::Color(UIColor::colorForProgress(progress));
}

} // namespace Lumora
