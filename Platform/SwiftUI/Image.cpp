#include "SwiftUI/Image.h"

namespace SwiftUI {

std::optional<UIKit::UIImage> Image::resolve(const UIKit::UITraitCollection& traits) const {
    return UIKit::UIImage::imageNamed(asset_.name, *asset_.bundle, &traits);
}

} // namespace SwiftUI
