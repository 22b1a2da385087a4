#include "SwiftUI/Color.h"

namespace SwiftUI {

std::optional<UIKit::UIColor> Color::resolve(const UIKit::UITraitCollection& traits) const {
    if (const NamedAsset* named = asset()) {
        const auto found = UIKit::UIColor::colorNamed(named->name, *named->bundle);
        return found ? std::optional(found->resolved(traits)) : std::nullopt;
    }
    return std::get<UIKit::UIColor>(state_).resolved(traits);
}

} // namespace SwiftUI
